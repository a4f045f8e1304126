#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include <string>
#include <vector>

namespace whole {

/// A ledger's folder of the test's own, as it ships. Looks at what the program leaves there, and makes ready what it is
/// to find. The data are changed only while no program runs in the folder.
class LedgerFolder {
public:
    LedgerFolder();
    /// One of a name that can be shown: `place` is its parent, which is made anew and taken away at the end.
    explicit LedgerFolder(const QString& place);
    ~LedgerFolder();
    LedgerFolder(const LedgerFolder&) = delete;
    LedgerFolder& operator=(const LedgerFolder&) = delete;

    QString path() const;
    QString file(const std::string& name) const;
    /// A file of the program, which lies there too unless it is installed.
    QString programFile(const std::string& name) const;
    bool has(const std::string& name) const;
    QByteArray bytes(const std::string& name) const;
    void write(const std::string& name, const QByteArray& bytes) const;
    void remove(const std::string& name) const;

    /// Room for what lies beside the folder.
    QString beside(const std::string& name) const;

    /// The two bytes that close data.dll to others: "00 00" after a clean end, "01 00" while the program runs.
    std::string header() const;
    /// Each row of a query, its values joined by "|", NULL as nothing.
    std::vector<std::string> rows(const std::string& query) const;
    void execute(const std::string& statements) const;

private:
    QTemporaryDir m_folder;
    const QString m_place; ///< instead of it
};

} // namespace whole
