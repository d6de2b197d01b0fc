// The library behind one StorLib handle: the state store, the cached model,
// the last snapshot and this handle's event cursors. Every call runs under
// one mutex (threads) and the state file lock (processes).
#pragma once
#include "sim/Model.h"
#include "store/StateStore.h"

#include <storlib/StorLib.h>

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <type_traits>

namespace storlib::detail {

class Core {
public:
    Ret open(const Options& options);
    void close();
    bool isOpen();

    // Runs f(const Model&) on the current state.
    template <class F> Ret read(F&& f) { return run(false, [&](sim::Model& m) { return f(static_cast<const sim::Model&>(m)); }); }
    // Runs f(Model&); the change is saved when f succeeds and dropped when it fails.
    template <class F> Ret write(F&& f) { return run(true, f); }

    std::shared_ptr<const SystemConfig> snapshot();
    Ret events(uint32_t adapter, bool history, size_t max, StorEventCollection& out);
    Ret lastError();
    std::string statePath();
    // Replaces the state by the system description (sets a broken state file aside).
    Ret reset();
    Ret setTimeScale(double scale);
    Ret advanceTime(double seconds);
    Ret getTime(double& now, double& scale);

private:
    using Fn = Ret (*)(void*, sim::Model&);
    template <class F> Ret run(bool exclusive, F&& f) {
        using T = std::remove_reference_t<F>;
        void* ctx = const_cast<void*>(static_cast<const void*>(&f));
        return runRaw(exclusive, ctx, [](void* p, sim::Model& m) -> Ret { return (*static_cast<T*>(p))(m); });
    }
    Ret runRaw(bool exclusive, void* ctx, Fn fn);
    Ret acquire(bool& exclusive);
    Ret createFromDescription(std::optional<sim::Model> previous);
    Ret loadIfChanged();
    Ret persist();
    void initCursors();

    std::mutex mu_;
    bool open_ = false;
    Options opts_;
    std::string descText_, descOrigin_;
    store::StateStore store_;
    std::optional<sim::Model> model_;
    store::FileStamp stamp_;
    uint64_t generation_ = 0;
    std::shared_ptr<const SystemConfig> snap_;
    uint64_t snapGeneration_ = ~0ull;
    int64_t snapSecond_ = -1;
    std::map<uint32_t, uint64_t> cursors_;  // controller uid -> last fetched sequence
    Ret lastError_;
};

}  // namespace storlib::detail
