#include "app/book_folder.h"

#include "store/ledger_folder.h"

#include <QDir>

namespace qinghe {

Installation systemInstallation() {
    return {QStringLiteral(QINGHE_INSTALLED_PROGRAM), QStringLiteral(QINGHE_INSTALLED_BROUGHT)};
}

BookFolder readyBookFolder(const QString& programFolder, const Installation& installation) {
    if (programFolder != QDir(installation.program).canonicalPath())
        return {programFolder, {}};
    BookFolder book{ownLedgerFolder(), {}};
    try {
        readyLedgerFolder(book.path, [&](const QString& folder) { bringAlong(installation.brought, folder); });
    } catch (const RuntimeError& error) {
        book.trouble = error;
    }
    return book;
}

} // namespace qinghe
