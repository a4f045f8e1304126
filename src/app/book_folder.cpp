#include "app/book_folder.h"

#include "store/ledger_folder.h"

#include <QDir>

namespace qinghe {

using namespace Qt::StringLiterals;

Installation systemInstallation() {
    return {QStringLiteral(QINGHE_INSTALLED_PROGRAM), QStringLiteral(QINGHE_INSTALLED_BROUGHT)};
}

BookFolder readyBookFolder(const QString& programFolder, const Installation& installation) {
    const bool installed = programFolder == QDir(installation.program).canonicalPath();
    BookFolder book{installed ? ownLedgerFolder() : programFolder, {}};
    try {
        if (installed)
            readyLedgerFolder(book.path, [&](const QString& folder) { bringAlong(installation.brought, folder); });
        else
            layFirstBook(programFolder + u"/lib/first"_s, programFolder);
    } catch (const RuntimeError& error) {
        book.trouble = error;
    }
    return book;
}

} // namespace qinghe
