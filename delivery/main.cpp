#include "delivery/first_data.h"
#include "delivery/music.h"
#include "delivery/web_pages.h"
#include "runtime/runtime_error.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

/// Fills the folder that ships: `qinghe_delivery <folder>`. The data file is made when it is missing and never touched
/// when it is there; everything else is renewed. Runs without a display.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: qinghe_delivery FOLDER\n", stderr);
        return 2;
    }
    const QString folder = QFile::decodeName(argv[1]);
    QDir().mkpath(folder);
    try {
        qinghe::deliverFirstData(folder);
        qinghe::deliverWebPages(folder);
        qinghe::deliverMusic(folder);
    } catch (const qinghe::RuntimeError& error) {
        std::fprintf(stderr, "qinghe_delivery: %s\n", error.what());
        return 1;
    }
    return 0;
}
