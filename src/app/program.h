#pragma once

#include "controls/key_gate.h"
#include "core/shared.h"

namespace qinghe {

/// The program put together: the forms that exist, the pages of the main window, and the road on which every handler's
/// work is kept and every run-time error is told.
class Program {
public:
    explicit Program(Services services);
    ~Program();

    /// Shows the sign-in.
    void start();

    Shared& shared() { return m_shared; }

private:
    void defineForms();
    void tellError(const RuntimeError& error);
    void comeForward();
    void end(int code);

    KeyGate m_keyGate;
    Shared m_shared;
};

} // namespace qinghe
