#include "core/Core.h"

#include "core/BuiltinSystem.h"
#include "core/SnapshotBuilder.h"
#include "sim/Clock.h"
#include "sim/Description.h"
#include "sim/Tasks.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <cstring>

namespace storlib::detail {
namespace {

constexpr size_t kMaxDescriptionBytes = 64u << 20;

// Unlocks the state file lock on every way out.
struct FileLock {
    store::StateStore& s;
    ~FileLock() { s.unlock(); }
};

Ret readDescription(const std::string& path, std::string& text) {
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return Ret(RetStatus::BadDescription, "cannot read " + path + ": " + std::strerror(errno));
    struct stat st{};
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || static_cast<size_t>(st.st_size) > kMaxDescriptionBytes) {
        ::close(fd);
        return Ret(RetStatus::BadDescription, path + ": not a regular file of sane size");
    }
    text.assign(static_cast<size_t>(st.st_size), '\0');
    ssize_t n = ::read(fd, text.data(), text.size());
    ::close(fd);
    if (n < 0 || static_cast<size_t>(n) != text.size())
        return Ret(RetStatus::BadDescription, "cannot read " + path);
    return Ret::success();
}

}  // namespace

Ret Core::open(const Options& options) {
    std::lock_guard<std::mutex> g(mu_);
    open_ = false;
    opts_ = options;
    if (opts_.stateDir.empty()) opts_.stateDir = store::defaultStateDir();
    if (opts_.systemFile.empty()) {
        descText_ = builtinSystemDescription();
        descOrigin_ = "built-in demo system";
    } else {
        if (Ret r = readDescription(opts_.systemFile, descText_); !r) return lastError_ = r;
        descOrigin_ = opts_.systemFile;
    }
    if (Ret r = store::prepareStateDir(opts_.stateDir); !r) return lastError_ = r;
    if (Ret r = store_.open(opts_.stateDir, store::stateFileStem(opts_.systemFile, descText_)); !r)
        return lastError_ = r;
    open_ = true;
    model_.reset();
    bool exclusive = opts_.timeScale.has_value();
    Ret r = acquire(exclusive);
    FileLock unlock{store_};
    if (r.getStatus() == RetStatus::BadDescription) {
        open_ = false;
        store_.close();
        return lastError_ = r;
    }
    if (!r) return lastError_ = r;  // open, so that a broken state can be reset
    if (opts_.timeScale && model_->clock.scale != *opts_.timeScale) {
        sim::reanchor(model_->clock, sim::wallNow());
        model_->clock.scale = std::max(0.0, *opts_.timeScale);
        if (Ret p = persist(); !p) return lastError_ = p;
    }
    initCursors();
    return lastError_ = Ret::success();
}

void Core::close() {
    std::lock_guard<std::mutex> g(mu_);
    open_ = false;
    store_.close();
    model_.reset();
    snap_.reset();
    cursors_.clear();
}

bool Core::isOpen() {
    std::lock_guard<std::mutex> g(mu_);
    return open_;
}

void Core::initCursors() {
    for (const sim::ControllerRec& c : model_->controllers) cursors_[c.uid] = c.nextSequence - 1;
}

Ret Core::createFromDescription(std::optional<sim::Model> previous) {
    try {
        sim::Model m = sim::loadDescription(descText_, descOrigin_, sim::wallNow());
        if (opts_.timeScale) m.clock.scale = std::max(0.0, *opts_.timeScale);
        // Event numbers go on across a reset, so that readers in other processes keep up.
        if (previous)
            for (sim::ControllerRec& c : m.controllers)
                for (const sim::ControllerRec& old : previous->controllers)
                    if (old.uid == c.uid) c.nextSequence = std::max(c.nextSequence, old.nextSequence);
        model_ = std::move(m);
    } catch (const sim::DescriptionError& e) {
        return Ret(RetStatus::BadDescription, e.what());
    }
    return persist();
}

Ret Core::persist() {
    if (Ret r = store_.write(sim::dumpState(*model_)); !r) {
        model_.reset();
        return r;
    }
    store_.stamp(stamp_);
    ++generation_;
    return Ret::success();
}

Ret Core::loadIfChanged() {
    store::FileStamp st;
    if (!store_.stamp(st)) return Ret(RetStatus::StateError, "state file " + store_.path() + " disappeared");
    if (model_ && st == stamp_) return Ret::success();
    std::string text;
    if (Ret r = store_.read(text); !r) return r;
    try {
        model_ = sim::loadState(text, store_.path());
    } catch (const std::exception& e) {
        model_.reset();
        return Ret(RetStatus::StateError, std::string("the controller state is unreadable and is left as it is "
                                                      "(reset it to start again): ") + e.what());
    }
    stamp_ = st;
    ++generation_;
    return Ret::success();
}

Ret Core::acquire(bool& exclusive) {
    for (;;) {
        if (Ret r = store_.lock(exclusive); !r) return r;
        store::FileStamp st;
        if (!store_.stamp(st)) {
            if (!exclusive) {
                store_.unlock();
                exclusive = true;
                continue;
            }
            if (Ret r = createFromDescription(std::nullopt); !r) return r;
        }
        if (Ret r = loadIfChanged(); !r) return r;
        model_->eventQueueSize = opts_.eventQueueSize;
        double now = std::max(model_->now, sim::clockAt(model_->clock, sim::wallNow()));
        if (sim::tasksDue(*model_, now)) {
            if (!exclusive) {
                store_.unlock();
                exclusive = true;
                continue;
            }
            sim::advanceTasks(*model_, now);
            if (Ret r = persist(); !r) return r;
        }
        model_->now = now;
        return Ret::success();
    }
}

Ret Core::runRaw(bool exclusive, void* ctx, Fn fn) {
    std::lock_guard<std::mutex> g(mu_);
    if (!open_) return Ret(RetStatus::NotOpen, "the library is not open");
    Ret r = acquire(exclusive);
    FileLock unlock{store_};
    if (!r) return lastError_ = r;
    try {
        r = fn(ctx, *model_);
    } catch (const std::exception& e) {
        r = Ret(RetStatus::InvalidArgument, std::string("request failed: ") + e.what());
    }
    if (!exclusive) return r;
    if (r) {
        if (Ret p = persist(); !p) return lastError_ = p;
    } else {
        model_.reset();  // drop whatever a refused request touched; the file is unchanged
    }
    return r;
}

std::shared_ptr<const SystemConfig> Core::snapshot() {
    std::lock_guard<std::mutex> g(mu_);
    if (!open_) {
        lastError_ = Ret(RetStatus::NotOpen, "the library is not open");
        return nullptr;
    }
    bool exclusive = false;
    Ret r = acquire(exclusive);
    FileLock unlock{store_};
    if (!r) {
        lastError_ = r;
        return nullptr;
    }
    bool moving = false;
    for (const sim::ControllerRec& c : model_->controllers)
        for (const sim::TaskRec& t : c.tasks) moving = moving || t.p.taskState == TaskState::Running;
    int64_t second = moving ? static_cast<int64_t>(std::floor(model_->now)) : -2;
    if (!snap_ || snapGeneration_ != generation_ || snapSecond_ != second) {
        snap_ = SnapshotBuilder::build(*model_, generation_);
        snapGeneration_ = generation_;
        snapSecond_ = second;
    }
    return snap_;
}

Ret Core::events(uint32_t adapter, bool history, size_t max, StorEventCollection& out) {
    out.clear();
    return run(false, [&](sim::Model& m) {
        uint32_t index = 0;
        for (const sim::ControllerRec& c : m.controllers) {
            if (!c.present || index++ != adapter) continue;
            auto [it, fresh] = cursors_.emplace(c.uid, 0);
            (void)fresh;
            size_t first = history && c.events.size() > max ? c.events.size() - max : 0;
            for (size_t i = first; i < c.events.size(); ++i)
                if (history || c.events[i].sequence > it->second) out.add(StorEvent(adapter, c.events[i]));
            if (!history && !c.events.empty()) it->second = std::max(it->second, c.events.back().sequence);
            return Ret::success();
        }
        return Ret(RetStatus::NotFound, "no controller " + std::to_string(adapter));
    });
}

Ret Core::lastError() {
    std::lock_guard<std::mutex> g(mu_);
    return lastError_;
}

std::string Core::statePath() {
    std::lock_guard<std::mutex> g(mu_);
    return store_.path();
}

Ret Core::reset() {
    std::lock_guard<std::mutex> g(mu_);
    if (!store_.isOpen()) return Ret(RetStatus::NotOpen, "the library is not open");
    if (Ret r = store_.lock(true); !r) return r;
    FileLock unlock{store_};
    store::FileStamp st;
    std::optional<sim::Model> previous;
    if (store_.stamp(st)) {
        if (loadIfChanged()) previous = model_;
        else if (Ret r = store_.setAside(); !r) return r;
    }
    Ret r = createFromDescription(previous);
    if (r) {
        open_ = true;
        if (cursors_.empty()) initCursors();
    }
    return lastError_ = r;
}

Ret Core::setTimeScale(double scale) {
    if (!(scale >= 0) || scale > 1e6) return Ret(RetStatus::InvalidArgument, "time scale must be from 0 to 1000000");
    return write([&](sim::Model& m) {
        sim::reanchor(m.clock, sim::wallNow());
        m.clock.scale = scale;
        return Ret::success();
    });
}

Ret Core::advanceTime(double seconds) {
    if (!(seconds >= 0) || seconds > 1e9) return Ret(RetStatus::InvalidArgument, "seconds must be from 0 to 1e9");
    return write([&](sim::Model& m) {
        sim::reanchor(m.clock, sim::wallNow());
        m.clock.simAnchor += seconds;
        sim::advanceTasks(m, m.clock.simAnchor);
        m.now = m.clock.simAnchor;
        return Ret::success();
    });
}

Ret Core::getTime(double& now, double& scale) {
    return read([&](const sim::Model& m) {
        now = m.now;
        scale = m.clock.scale;
        return Ret::success();
    });
}

}  // namespace storlib::detail
