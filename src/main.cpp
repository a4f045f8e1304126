#include "app/program.h"
#include "look/look.h"
#include "platform/display.h"
#include "platform/start_ahead.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <optional>

int main(int argc, char** argv) {
    using namespace Qt::StringLiterals;
    std::thread fonts = qinghe::readFontsAhead();
    qinghe::ApplicationArguments arguments(argc, argv);
    std::optional<qinghe::DisplayWatch> watch(std::in_place);
    QApplication application(arguments.count(), arguments.values());
    watch.reset();
    QApplication::setQuitOnLastWindowClosed(false);
    QTranslator chinese;
    if (chinese.load(u"qtbase_zh_CN"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&chinese);
    fonts.join();
    qinghe::dress(application);
    qinghe::Program program(qinghe::desktopServices());
    program.start();
    return QApplication::exec();
}
