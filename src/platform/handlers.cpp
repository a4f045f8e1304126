#include "platform/handlers.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace qinghe::handlers {

using namespace Qt::StringLiterals;

namespace {

struct Waiting {
    const void* key;
    std::function<void()> call;
};

struct State {
    Hooks hooks;
    int depth = 0;
    bool ending = false;
    std::vector<Waiting> boundary;
    std::vector<Waiting> ticks;
};

State& state() {
    static State s;
    return s;
}

bool waits(const std::vector<Waiting>& list, const void* key) {
    return std::any_of(list.begin(), list.end(), [key](const Waiting& w) { return w.key == key; });
}

/// A key that waits already keeps its place and its call.
void queueOnce(std::vector<Waiting>& list, const void* key, std::function<void()> call) {
    if (!waits(list, key))
        list.push_back({key, std::move(call)});
}

void drop(std::vector<Waiting>& list, const void* key) {
    std::erase_if(list, [key](const Waiting& w) { return w.key == key; });
}

void runBoundaryCalls() {
    // A call may ask for another one.
    while (!state().boundary.empty()) {
        const auto calls = std::exchange(state().boundary, {});
        for (const auto& w : calls)
            w.call();
    }
}

void endProgram(int code) {
    if (state().hooks.end)
        state().hooks.end(code);
}

/// What was done stays; when even that cannot be kept, the first error is the one to tell.
void commitQuietly() {
    try {
        boundary();
    } catch (...) {
    }
}

/// A way back that fails as well is no reason not to tell the error.
void keepWayBack() {
    try {
        if (state().hooks.failed)
            state().hooks.failed();
    } catch (...) {
    }
}

void fail(const RuntimeError& error) {
    keepWayBack();
    commitQuietly();
    state().ending = true;
    if (state().hooks.report)
        state().hooks.report(error);
    endProgram(1);
}

/// A fault of the program itself; `trace` says which, to whoever is asked for help.
RuntimeError internalError(const char* trace) {
    return RuntimeError(RuntimeError::InternalError,
                        u"程序内部出错，无法继续。请重新启动程序，核对刚才的记录；"
                        "如果再次出现，请先备份账本（复制 data.dll），再把下面这行文字告诉维护程序的人。\r\n%1"_s.arg(
                            QString::fromUtf8(trace)));
}

/// The body of a guard: whatever leaves `call` ends here. Returns whether the program goes on.
bool guarded(const std::function<void()>& call) {
    try {
        call();
        return true;
    } catch (const RuntimeError& error) {
        fail(error);
    } catch (const ProgramEnd& end) {
        commitQuietly();
        state().ending = true;
        endProgram(end.code);
    } catch (const std::bad_alloc&) {
        fail(RuntimeError(RuntimeError::OutOfMemory, u"内存不足，程序无法继续。已经保存的记录不受影响。"_s));
    } catch (const std::exception& error) {
        fail(internalError(error.what()));
    } catch (...) {
        fail(internalError("unknown exception"));
    }
    return false;
}

void runWaitingTicks() {
    while (!state().ending && !state().ticks.empty()) {
        const Waiting next = state().ticks.front();
        state().ticks.erase(state().ticks.begin());
        enter(next.call);
    }
}

} // namespace

void install(Hooks hooks) {
    state().hooks = std::move(hooks);
}

void enter(const std::function<void()>& handler) {
    if (state().ending)
        return;
    const bool outermost = state().depth == 0;
    ++state().depth;
    const bool goesOn = guarded([&] {
        handler();
        if (outermost)
            boundary();
    });
    --state().depth;
    if (!outermost || !goesOn)
        return;
    if (state().hooks.returned)
        state().hooks.returned();
    runWaitingTicks();
}

int depth() {
    return state().depth;
}

bool ending() {
    return state().ending;
}

void bar() {
    state().ending = true;
}

void reset() {
    state() = State{};
}

void boundary() {
    runBoundaryCalls();
    if (state().hooks.commit)
        state().hooks.commit();
}

void atBoundary(const void* key, std::function<void()> call) {
    queueOnce(state().boundary, key, std::move(call));
}

void forget(const void* key) {
    drop(state().boundary, key);
}

void tick(const void* key, std::function<void()> call) {
    if (state().depth == 0) {
        enter(call);
        return;
    }
    queueOnce(state().ticks, key, std::move(call));
}

void forgetTick(const void* key) {
    drop(state().ticks, key);
}

} // namespace qinghe::handlers
