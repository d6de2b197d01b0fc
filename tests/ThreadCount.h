// The threads of this process, for tests that check that stopped machinery
// leaves none behind.
#ifndef VEX_TESTS_THREADCOUNT_H
#define VEX_TESTS_THREADCOUNT_H

#include <dirent.h>

namespace vex::testsupport {

inline int threadCount() {
    int count = 0;
    if (DIR* dir = opendir("/proc/self/task")) {
        while (dirent* entry = readdir(dir)) {
            count += entry->d_name[0] != '.' ? 1 : 0;
        }
        closedir(dir);
    }
    return count;
}

}  // namespace vex::testsupport

#endif
