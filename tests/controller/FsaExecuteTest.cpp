// Routines by name, the routine list, the result codes and their names, and
// the small entry points around the library handle.
#include <future>
#include <thread>

#include "FsaTestSupport.h"
#include "framework/LogCapture.h"

namespace vex::cim::fwf::test {

namespace {

class FsaExecuteTest : public FsaTest {
protected:
    unsigned int run(const std::string& routine) {
        out.clearArgument();
        return fsa->execute(CIMObjectPath(), routine, CIMMethodParam(), out);
    }
    // True when another thread can take the mutex within a second.
    static bool freeForOthers(TKZ_MUTEX mutex) {
        auto taken = std::async(std::launch::async, [mutex] {
            TkzMutexLock(mutex);
            TkzMutexUnlock(mutex);
        });
        return taken.wait_for(std::chrono::seconds(1)) == std::future_status::ready;
    }
    CIMMethodParam out;
};

}  // namespace

TEST_F(FsaExecuteTest, OnlyRoutinesOfTheTableRunAndNamesAreExact) {
    EXPECT_EQ(run("NoSuchRoutine"), unsigned{FSAIF_NOT_IMPL});
    EXPECT_EQ(run("getroutinelist"), unsigned{FSAIF_NOT_IMPL});
    EXPECT_EQ(run("GetFeatureList"), unsigned{FSAIF_NOT_IMPL});
    EXPECT_EQ(run("getRoutineList"), 0u);
}

TEST_F(FsaExecuteTest, TheRoutineListIsInByteOrder) {
    std::vector<std::string> names = {"left over"};
    EXPECT_EQ(fsa->FSAGetSupportedRoutines(names), 0u);
    ASSERT_FALSE(names.empty());
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_EQ(std::count(names.begin(), names.end(), "left over"), 0);
    for (const char* name : {"getRoutineList", "listDirectory", "GetSupportedSizes", "GetSupportedSizeRange",
                             "CreateOrModifyElementFromStoragePool", "ReturnToStoragePool",
                             "CreateOrModifyElementFromElements"}) {
        EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
    }
    // Upper case sorts before lower case.
    EXPECT_LT(std::find(names.begin(), names.end(), "ReturnToStoragePool"),
              std::find(names.begin(), names.end(), "getRoutineList"));

    ASSERT_EQ(run("getRoutineList"), 0u);
    const CIMProperty* list = out.getArgumentByName("Routine_List");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->getType(), CIM_STRING_ARRAY);
    EXPECT_EQ(list->getStringValue().getValues(), names);
}

TEST_F(FsaExecuteTest, TheAcceptedNoOperationsSucceedWithoutRefreshAndReleaseTheLocks) {
    TKZ_MUTEX eventMutex = TkzMutexInit();
    std::vector<unsigned int> posted;
    FsaEventLink link;
    link.eventMutex = [eventMutex] { return eventMutex; };
    link.postPollEvent = [&posted](unsigned int bits) { posted.push_back(bits); };
    fsa->setEventLink(link);
    for (const char* routine : {"CreateOrModifyElementFromStoragePool", "CreateOrModifyElementFromElements",
                                "ReturnToStoragePool", "GetSupportedSizes", "GetSupportedSizeRange", "listDirectory"}) {
        EXPECT_EQ(run(routine), 0u) << routine;
        EXPECT_EQ(out.getArgumentCount(), 0u) << routine;
    }
    EXPECT_TRUE(posted.empty());
    EXPECT_TRUE(freeForOthers(eventMutex));
    EXPECT_TRUE(freeForOthers(VexFSAInterface::getStorlibGuard()));
    fsa->setEventLink(FsaEventLink{});
    TkzMutexDelete(&eventMutex);
}

TEST_F(FsaExecuteTest, ResultCodesHaveTheirNames) {
    EXPECT_STREQ(fsaifReturnName(0), "FSAIF_SUCCESS");
    EXPECT_STREQ(fsaifReturnName(7), "FSA_SYSTEM_FAILURE");
    EXPECT_STREQ(fsaifReturnName(12), "FSAIF_CACHE_ACCESS_FAILED");
    EXPECT_STREQ(fsaifReturnName(20), "FSAIF_VSTREAM_NULL_BUFFER");
    EXPECT_STREQ(fsaifReturnName(21), "FSAIF_UNLISTED_ERROR");
    EXPECT_STREQ(fsaifReturnName(0xffffffffu), "FSAIF_UNLISTED_ERROR");
    logFsaifError(kFsaifNoLibraryHandle);
    const auto lines = loggedLines();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back().level, TKZ_LOG_ERROR);
    EXPECT_EQ(lines.back().text, "FSAIF_UNLISTED_ERROR");
}

TEST_F(FsaExecuteTest, TheControllerCountNeedsTheLibraryHandle) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    int count = -1;
    EXPECT_EQ(fsaifGetControllerCount(count), 0u);
    EXPECT_EQ(count, 2);
    fsa->terminate();
    EXPECT_EQ(fsaifGetControllerCount(count), unsigned{FSAIF_FAIL});
    EXPECT_EQ(count, 0);
    EXPECT_TRUE(logged("[AFAIF] Exception Occoured"));
}

TEST_F(FsaExecuteTest, RegistrationsGoToTheEventMachinery) {
    std::vector<std::pair<_eVEXObjectType, EventObserver*>> registered;
    FsaEventLink link;
    link.pushPluginVec = [&registered](_eVEXObjectType type, EventObserver* o) { registered.emplace_back(type, o); };
    fsa->setEventLink(link);
    EXPECT_EQ(fsa->registerForNotification(VEX_OBJ_JOB, nullptr), 0u);
    EXPECT_TRUE(logged("Plugin registration of type:12"));
    ASSERT_EQ(registered.size(), 1u);
    EXPECT_EQ(registered[0].first, VEX_OBJ_JOB);
    fsa->setEventLink(FsaEventLink{});
}

TEST_F(FsaExecuteTest, TheStartWritesTheBuildSignature) {
    ASSERT_EQ(start(shippedSystem("demo.json")), 0u);
    EXPECT_TRUE(logged("[AFAIF]BUILD_NUMBER         :   0"));
    bool stamp = false;
    for (const LoggedLine& line : loggedLines()) {
        stamp = stamp || (line.level == TKZ_LOG_FATAL && line.text.rfind("[AFAIF]BUILD_TIME_STAMP     :   ", 0) == 0);
    }
    EXPECT_TRUE(stamp);
}

}  // namespace vex::cim::fwf::test
