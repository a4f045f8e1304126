#pragma once

#include "core/workbench.h"
#include "platform/key_gate.h"

namespace qinghe {

/// The program put together: the forms that exist, the pages of the main window, and the road on which every handler's
/// work is kept and every run-time error is told.
class Program {
public:
    explicit Program(Services services);
    ~Program();

    /// Shows the sign-in.
    void start();

    Workbench& bench() { return m_bench; }

private:
    void defineForms();
    void end(int code);

    KeyGate m_keyGate;
    Workbench m_bench;
};

} // namespace qinghe
