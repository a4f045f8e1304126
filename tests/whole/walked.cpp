#include "walked.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QThread>

#include <filesystem>
#include <stdexcept>
#include <string_view>

namespace whole {

namespace {

Walked chosen{Walked::Built, QStringLiteral(QINGHE_APP_FOLDER)};

/// The built folder with first data in it, whoever may have used the one in the build meanwhile.
void deliver(const QString& folder) {
    copyLedger(chosen.folder, folder);
    QFile::remove(folder + QStringLiteral("/data.dll"));
    if (QProcess::execute(QStringLiteral(QINGHE_DELIVERY), {folder}) != 0)
        throw std::runtime_error("the delivery fails");
}

/// The installed program makes it itself, at its first start in a home.
QString madeAtFirstStart(const QString& home) {
    const QString made = home + QStringLiteral("/青禾家庭记账本");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral("qinghe"), {});
    const QDeadlineTimer patience(10000);
    while (!QFile::exists(made) && !patience.hasExpired())
        QThread::msleep(20);
    program.kill();
    program.waitForFinished();
    if (!QFile::exists(made))
        throw std::runtime_error("the first start makes no ledger: " + program.readAllStandardError().toStdString());
    // The sign-in may have begun to work in it.
    const QString book = QStringLiteral("/data.dll");
    QFile::remove(made + book);
    QFile::copy(QStringLiteral(QINGHE_INSTALLED_BROUGHT) + book, made + book);
    return made;
}

} // namespace

const Walked& walked() {
    return chosen;
}

void chooseWalked(int argc, char** argv) {
    const std::string_view choice = argc > 1 ? argv[1] : "";
    if (choice == "--unpacked" && argc == 3)
        chosen = {Walked::Unpacked, QFile::decodeName(argv[2])};
    else if (choice == "--installed" && argc == 2)
        chosen = {Walked::Installed, QStringLiteral(QINGHE_INSTALLED_PROGRAM)};
    else if (argc > 1)
        throw std::runtime_error("usage: test_whole [--unpacked FOLDER | --installed]");
}

QString newLedger() {
    static const QTemporaryDir room;
    static const QString Folder = [] {
        if (chosen.kind == Walked::Unpacked)
            return chosen.folder;
        if (chosen.kind == Walked::Installed)
            return madeAtFirstStart(room.path());
        const QString folder = room.filePath(QStringLiteral("app"));
        deliver(folder);
        return folder;
    }();
    return Folder;
}

void copyLedger(const QString& from, const QString& to) {
    namespace fs = std::filesystem;
    fs::create_directories(to.toStdString());
    for (const fs::directory_entry& entry : fs::directory_iterator(from.toStdString())) {
        const fs::path target = to.toStdString() / entry.path().filename();
        if (entry.path().filename() == "lib") // libraries, which nobody changes
            fs::create_directory_symlink(entry.path(), target);
        else
            fs::copy(entry.path(), target, fs::copy_options::recursive);
    }
}

} // namespace whole
