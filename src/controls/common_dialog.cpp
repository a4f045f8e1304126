#include "controls/common_dialog.h"

#include "platform/handlers.h"

namespace qinghe {

CommonDialog::CommonDialog(FileChooser& chooser, const QString& name, QObject* parent)
    : QObject(parent), m_chooser(chooser) {
    setObjectName(name);
}

void CommonDialog::showOpen() {
    handlers::boundary();
    if (const auto chosen = m_chooser.choose(m_filter, m_fileName.isEmpty() ? m_suggestion : m_fileName))
        m_fileName = *chosen;
}

} // namespace qinghe
