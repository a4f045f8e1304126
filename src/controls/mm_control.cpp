#include "controls/mm_control.h"

namespace qinghe {

MMControl::MMControl(SoundDevice& device, const QString& name, QObject* parent) : QObject(parent), m_device(device) {
    setObjectName(name);
}

void MMControl::setCommand(const QString& command) {
    m_command = command;
    if (command == QLatin1String("open"))
        open();
    else if (!m_sound)
        return;
    else if (command == QLatin1String("play"))
        m_sound->play();
    else if (command == QLatin1String("stop"))
        m_sound->stop();
    else if (command == QLatin1String("prev"))
        m_sound->rewind();
    else if (command == QLatin1String("close"))
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
