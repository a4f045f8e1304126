#pragma once

#include <QFile>

namespace qinghe {

/// What lies under a name; a link is not followed.
enum class FileKind {
    Missing,
    Plain,
    Shared, ///< a plain file that bears a second name elsewhere
    Link,
    Folder,
    Other, ///< a pipe, a device, a socket: whoever opens it may wait for ever
};
FileKind kindOf(const QString& path);

/// Whether a file or folder belongs to the account that runs the program, or there is none of that name.
bool isOwn(const QString& path);

/// Whether an open file belongs to the account that runs the program and bears no second name. Asked once more of a
/// file that is to be written into, since whoever may write in its folder can change what lies under a name.
bool isOwnAlone(const QFile& opened);

/// Takes every right to a file or folder away from other accounts. Leaves alone what is none, a link, somebody else's
/// and a file with a second name, and says nothing where it cannot be done.
void closeToOthers(const QString& path);

/// Whether a link at the end of the path is followed to where it leads.
enum class Links { Refuse, Follow };

/// A file that opens only if it is a plain one, so that nobody is made to wait at a pipe or to write through a link
/// that somebody else has laid. What it makes is for its owner alone.
class PlainFile : public QFile {
public:
    explicit PlainFile(const QString& path, Links links = Links::Refuse) : QFile(path), m_path(path), m_links(links) {}

    /// ReadOnly, WriteOnly, ReadWrite; WriteOnly alone makes a file that is missing and empties one that is there, as
    /// QFile does; beside them Append, Truncate, NewOnly, ExistingOnly, Unbuffered. False when it is no plain file, and
    /// where QFile would say so.
    bool open(OpenMode mode) override;
    QString fileName() const override { return m_path; }
    /// Why the last opening failed, in Chinese, as the end of a sentence that names the file.
    QString objection() const { return m_objection; }

private:
    bool refuse(const QString& objection);

    QString m_path;
    Links m_links;
    QString m_objection;
};

} // namespace qinghe
