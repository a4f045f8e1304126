#include "delivery/first_data.h"
#include "delivery/icons.h"
#include "delivery/music.h"
#include "delivery/web_pages.h"
#include "runtime/runtime_error.h"
#include "store/ledger_folder.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

namespace {

/// The data file is made when it is missing and never touched when it is there; everything else is renewed.
void fill(const QString& folder) {
    QDir().mkpath(folder);
    qinghe::deliverFirstData(folder);
    qinghe::deliverWebPages(folder);
    qinghe::deliverMusic(folder);
}

void readyLedger(const QString& folder) {
    qinghe::readyLedgerFolder(folder, fill);
}

struct Verb {
    const char* name;
    void (*run)(const QString& folder);
};

constexpr Verb Verbs[] = {
    {"", fill},                      // the folder that ships
    {"ledger", readyLedger},         // an account's own folder, see ledger_folder.h
    {"icons", qinghe::deliverIcons}, // those of a desktop's menus
};

} // namespace

/// Makes what ships beside the program: `qinghe_delivery [<verb>] <folder>`. Runs without a display.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QGuiApplication application(argc, argv);
    const char* const asked = argc == 3 ? argv[1] : "";
    for (const Verb& verb : Verbs) {
        if (argc < 2 || argc > 3 || qstrcmp(asked, verb.name) != 0) {
            continue;
        }
        try {
            verb.run(QFile::decodeName(argv[argc - 1]));
        } catch (const qinghe::RuntimeError& error) {
            std::fprintf(stderr, "qinghe_delivery: %s\n", error.what());
            return 1;
        }
        return 0;
    }
    std::fputs("usage: qinghe_delivery [ledger|icons] FOLDER\n", stderr);
    return 2;
}
