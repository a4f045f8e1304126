#pragma once

namespace qinghe {

/// From here on what the program makes is for its owner alone, whatever the account's habits are: there are passwords
/// and a diary in it. To be called before anything is made.
void keepNewFilesPrivate();

/// While it lives, the account's own habits hold again: for other programs that are started.
class AccountsOwnHabits {
public:
    AccountsOwnHabits();
    ~AccountsOwnHabits();
    AccountsOwnHabits(const AccountsOwnHabits&) = delete;
    AccountsOwnHabits& operator=(const AccountsOwnHabits&) = delete;

private:
    unsigned m_kept;
};

} // namespace qinghe
