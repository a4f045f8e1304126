#pragma once

#include "controls/key_gate.h"
#include "core/shared.h"
#include "runtime/runtime_error.h"

#include <optional>
#include <vector>

namespace qinghe {

class Page;

/// The program put together: the forms that exist, the pages of the main window, and the road on which every handler's
/// work is kept and every run-time error is told.
class Program {
public:
    explicit Program(Services services);
    ~Program();

    /// Shows the sign-in, or tells why the book has no folder.
    void start(const std::optional<RuntimeError>& trouble = {});
    /// The system wants the program to end, by a log-out or the like; to be called from the event loop, that of a
    /// message box included. Ends it as the desktop's closing of the main window does, with code 0 and without a word;
    /// what was typed and is not in the book goes into a file first, since nobody chose to lose it. An error window
    /// that waits goes with the program, and with the error's code.
    void endAsked();

    Shared& shared() { return m_shared; }

private:
    void defineForms();
    void tellError(const RuntimeError& error);
    std::vector<Page*> pages() const;
    void comeForward();
    void end(int code);

    KeyGate m_keyGate;
    Shared m_shared;
};

} // namespace qinghe
