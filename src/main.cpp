#include "app/book_folder.h"
#include "app/program.h"
#include "core/main_window.h"
#include "look/lent_fonts.h"
#include "look/look.h"
#include "platform/end_requests.h"
#include "platform/fitted_application.h"
#include "platform/private_files.h"
#include "platform/steady_process.h"

#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char** argv) {
    using namespace Qt::StringLiterals;
    qinghe::steadyProcess();
    qinghe::keepNewFilesPrivate();
    qinghe::FittedApplication application(argc, argv, qinghe::MainWindow::sizeInPixels());
    QApplication::setQuitOnLastWindowClosed(false);
    QTranslator chinese;
    if (chinese.load(u"qtbase_zh_CN"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&chinese);
    application.awaitFonts();
    qinghe::lendChineseFonts(QApplication::applicationDirPath() + u"/lib/fonts"_s);
    qinghe::dress(*application);
    const qinghe::BookFolder book = qinghe::readyBookFolder(QApplication::applicationDirPath());
    qinghe::Program program(qinghe::desktopServices(book.path));
    const qinghe::EndRequests requests([&program] { program.endAsked(); });
    program.start(book.trouble);
    return QApplication::exec();
}
