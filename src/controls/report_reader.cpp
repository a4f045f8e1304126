#include "controls/report_reader.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

namespace qinghe {

using namespace Qt::StringLiterals;

ReportReader::ReportReader(MSFlexGrid& list) : Control(list.parentWidget(), {}), m_list(list) {
    setAccessibleName(u"报表，用方向键逐行看"_s);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setShown(false);
    list.installEventFilter(this);
}

bool ReportReader::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::Resize || event->type() == QEvent::Move)
        follow();
    return false;
}

void ReportReader::follow() {
    place(m_list.Left(), m_list.Top(), m_list.Width(), m_list.Height());
    setGeometry(m_list.geometry()); // a bar at its foot makes the list shorter than its twips
    if (Visible() != m_list.isEnabled())
        return;
    setShown(!m_list.isEnabled());
    m_list.setMarked(false);
    raise();
}

void ReportReader::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(m_list.walk(*event));
    if (event->isAccepted())
        m_list.setMarked(true);
}

void ReportReader::paintEvent(QPaintEvent*) {
    if (!hasFocus())
        return;
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(static_cast<QStyle::PrimitiveElement>(PE_KeyboardRing), &option, &painter, this);
}

} // namespace qinghe
