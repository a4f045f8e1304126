#include "started.h"

#include <QProcess>
#include <QProcessEnvironment>

namespace whole {

Ended started(const LedgerFolder& folder, const std::vector<std::pair<QString, QString>>& variables) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), folder.beside("home"));
    for (const auto& [name, value] : variables)
        value.isEmpty() ? environment.remove(name) : environment.insert(name, value);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(folder.programFile("qinghe"), {});
    if (!process.waitForFinished(10000)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    const bool ended = process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, process.readAllStandardError().toStdString()};
}

} // namespace whole
