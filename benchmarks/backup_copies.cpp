#include "backup_copies.h"

#include "support/program_rig.h"

#include <QProcess>

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;
using namespace qinghe::testing;

namespace {

constexpr int Runs = 7;
constexpr qint64 FileSize = 100'000'000;

/// Bytes behind the data that no file system packs; they do a ledger no harm.
void lengthen(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::Append))
        qFatal("cannot lengthen the data file");
    QByteArray piece(1 << 20, Qt::Uninitialized);
    quint32 state = 1;
    while (file.size() < FileSize) {
        for (char& byte : piece)
            byte = static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
        file.write(piece.first(std::min<qint64>(piece.size(), FileSize - file.size())));
    }
}

double systemCopyTime(const QString& source, const QString& target) {
    return milliseconds([&] {
        if (QProcess::execute(u"cp"_s, {source, target}) != 0 || QProcess::execute(u"sync"_s, {target}) != 0)
            qFatal("cp failed");
    });
}

/// The window of one direction, with a file to copy to or from.
class Window {
public:
    Window(ProgramRig& rig, const QString& option) : m_rig(rig) {
        rig.click(rig.at(pages::Settings));
        rig.onMain<OptionButton>(option).click();
        rig.settle();
    }
    double copyTime(const QString& file) {
        m_rig.chooser->names = {file};
        auto& start = m_rig.at(backup::Start);
        const double time = milliseconds([&] { m_rig.click(start); });
        if (!m_rig.messages->errors.empty())
            qFatal("the copy was refused");
        return time;
    }

private:
    ProgramRig& m_rig;
};

} // namespace

void measureBackupCopies(Report& report) {
    ProgramRig rig;
    lengthen(rig.dataFile());
    rig.signIn();
    const QString ours = rig.file(u"ours.dat"_s), theirs = rig.file(u"theirs.dat"_s);
    Window backup(rig, settings::Backup);
    report.add(u"backup of 100 MB, durable, against cp and sync"_s,
               inTurn(
                   Runs,
                   [&] {
                       QFile::remove(ours);
                       return backup.copyTime(ours);
                   },
                   [&] {
                       QFile::remove(theirs);
                       return systemCopyTime(rig.dataFile(), theirs);
                   }),
               2);
    Window restore(rig, settings::Restore);
    report.add(u"restore of 100 MB, durable, against cp and sync"_s,
               inTurn(
                   Runs, [&] { return restore.copyTime(ours); }, [&] { return systemCopyTime(ours, theirs); }),
               2);
}

} // namespace qinghe::benchmarks
