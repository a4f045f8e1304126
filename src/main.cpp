#include "app/program.h"
#include "core/main_window.h"
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
    qinghe::dress(*application);
    qinghe::Program program(qinghe::desktopServices());
    const qinghe::EndRequests requests([&program] { program.endAsked(); });
    program.start();
    return QApplication::exec();
}
