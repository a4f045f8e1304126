#include "platform/private_files.h"

#include <optional>
#include <sys/stat.h>

namespace qinghe {

namespace {

std::optional<mode_t> accountsOwn; // the mask with which the program was started

} // namespace

void keepNewFilesPrivate() {
    const mode_t before = ::umask(S_IRWXG | S_IRWXO);
    if (!accountsOwn)
        accountsOwn = before;
}

AccountsOwnHabits::AccountsOwnHabits() : m_kept(::umask(S_IRWXG | S_IRWXO)) {
    ::umask(accountsOwn.value_or(m_kept));
}

AccountsOwnHabits::~AccountsOwnHabits() {
    ::umask(m_kept);
}

} // namespace qinghe
