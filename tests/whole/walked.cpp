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

/// Starts the program in a home until a file of its ledger is there.
void startUntil(const QString& file, const QString& program, const QString& home) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, {});
    const QDeadlineTimer patience(10000);
    while (!QFile::exists(file) && !patience.hasExpired())
        QThread::msleep(20);
    process.kill();
    process.waitForFinished();
    if (!QFile::exists(file))
        throw std::runtime_error("the first start makes no ledger: " + process.readAllStandardError().toStdString());
}

/// Lays a fresh book where the first start has laid one: the sign-in may have begun to work in it.
void renewBook(const QString& brought, const QString& folder) {
    const QString book = QStringLiteral("/data.dll");
    QFile::remove(folder + book);
    QFile::copy(brought + book, folder + book);
}

/// The installed program makes it itself, at its first start in a home.
QString madeAtFirstStart(const QString& home) {
    const QString made = home + QStringLiteral("/青禾家庭记账本");
    startUntil(made, QStringLiteral("qinghe"), home);
    renewBook(QStringLiteral(QINGHE_INSTALLED_BROUGHT), made);
    return made;
}

/// The portable program lays its first book beside it, at its first start.
QString unpackedAndStarted(const QString& room) {
    const QString made = room + QStringLiteral("/app");
    copyLedger(chosen.folder, made);
    startUntil(made + QStringLiteral("/data.dll"), made + QStringLiteral("/qinghe"), room);
    renewBook(chosen.folder + QStringLiteral("/lib/first"), made);
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
            return unpackedAndStarted(room.path());
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
