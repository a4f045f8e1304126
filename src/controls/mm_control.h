#pragma once

#include "platform/services.h"

#include <QObject>

#include <memory>

namespace qinghe {

/// The media control: one piece of music, moved by commands.
///
/// | Command | does |
/// |---|---|
/// | "open" | opens `FileName`, stopped at its beginning; leaves it alone when it is open, reopens for another name |
/// | "play" | plays on from where it stands; leaves a playing piece playing, and one at its end silent |
/// | "stop" | stops; the piece stays where it stands |
/// | "prev" | back to the beginning |
/// | "close" | lets go of the piece |
///
/// Any other text, and any command without an open piece, does nothing. Nothing here fails or waits: what cannot be
/// played is silent.
class MMControl : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString FileName READ FileName WRITE setFileName)
    Q_PROPERTY(QString Command READ Command WRITE setCommand) ///< reads back the last one given
    Q_PROPERTY(int Position READ Position)
    Q_PROPERTY(int Length READ Length)
    Q_PROPERTY(bool Visible READ isVisible CONSTANT) ///< there is nothing to see

public:
    MMControl(SoundDevice& device, const QString& name, QObject* parent = nullptr);

    const QString& FileName() const { return m_fileName; }
    void setFileName(const QString& path) { m_fileName = path; }
    const QString& Command() const { return m_command; }
    void setCommand(const QString& command);

    /// ms; both are 0 when closed, and the position is the length at the end of the piece.
    qint32 Position() const { return m_sound ? m_sound->position() : 0; }
    qint32 Length() const { return m_sound ? m_sound->length() : 0; }

    bool isVisible() const { return false; }

private:
    void open();

    SoundDevice& m_device;
    std::unique_ptr<Sound> m_sound; ///< none when closed
    QString m_fileName;
    QString m_opened; ///< the name that was opened last
    QString m_command;
};

} // namespace qinghe
