#include "controls/mm_control.h"

namespace qinghe {

using namespace Qt::StringLiterals;

MMControl::MMControl(SoundDevice& device, const QString& name, QObject* parent) : QObject(parent), m_device(device) {
    setObjectName(name);
}

void MMControl::setCommand(const QString& command) {
    m_command = command;
    if (command == "open"_L1)
        open();
    else if (!m_sound)
        return;
    else if (command == "play"_L1)
        m_sound->play();
    else if (command == "stop"_L1)
        m_sound->stop();
    else if (command == "prev"_L1)
        m_sound->rewind();
    else if (command == "close"_L1)
        m_sound.reset();
}

void MMControl::open() {
    if (m_sound && m_opened == m_fileName)
        return;
    m_sound.reset();
    m_sound = m_device.open(m_fileName);
    m_opened = m_fileName;
}

} // namespace qinghe
