#pragma once

#include "runtime/runtime_error.h"

#include <functional>

/// The guard at every entry from Qt into a handler. One thread; handlers nest (a click raised by code, an event that
/// comes in while a message box is open).
///
/// A handler is a unit of work: when the outermost one returns, what waits for a boundary is done (grids brought up to
/// date, the store committed), then ticks that came in meanwhile run, in the order in which they came. A run-time error
/// ends the program at the innermost guard: what was done is kept, the error is shown, the process ends with code 1.
/// Any other exception goes the same road as RuntimeError::InternalError.
namespace qinghe::handlers {

/// Thrown by a handler that ends the program itself; takes the same road as a run-time error, without a message.
struct ProgramEnd {
    int code;
};

/// What the guard needs of the program; set once at start.
struct Hooks {
    std::function<void()> failed = {}; ///< a run-time error stops a handler, whose work stands as it has left it
    std::function<void()> commit;      ///< ends the store's unit of work; may throw RuntimeError
    std::function<void(const RuntimeError&)> report; ///< shows the error window
    std::function<void(int code)> end;               ///< ends the process; returns in tests only
    std::function<void()> returned;                  ///< the outermost handler has returned and its work is kept
};
void install(Hooks hooks);

/// Runs a handler behind the guard. Does nothing once the program is ending.
void enter(const std::function<void()>& handler);

/// How many handlers are at work, message boxes opened by them included.
int depth();
/// Whether the program is ending: no further handler runs.
bool ending();
/// Lets no further handler run: the program is being taken apart.
void bar();
/// Lets handlers run again; for tests, which start many programs in one process.
void reset();

/// Ends the unit of work in the middle of a handler: grids are brought up to date and the store commits. Stands before
/// every message box. Throws RuntimeError.
void boundary();

/// Asks for a call at the next boundary; once for each key until then.
void atBoundary(const void* key, std::function<void()> call);
void forget(const void* key);

/// Runs a tick now, or when the outermost handler has returned. A key waits once at most, in the place of its first
/// tick; forgetTick drops it.
void tick(const void* key, std::function<void()> call);
void forgetTick(const void* key);

} // namespace qinghe::handlers
