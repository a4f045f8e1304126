#include "analysis/chart_accessible.h"

#include "controls/accessible.h"
#include "runtime/money.h"

namespace qinghe {

using namespace Qt::StringLiterals;

/// A label and its value: "餐饮，123.45元".
class ChartAccessible::Entry : public QAccessibleInterface {
public:
    Entry(MSChart& chart, int row) : m_chart(chart), m_row(row) {}

    int row() const { return m_row; }

    bool isValid() const override { return m_row < m_chart.ChartData().size(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent()->window(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !m_chart.isVisible();
        state.invalid = !isValid();
        return state;
    }
    QString text(QAccessible::Text what) const override {
        if (what != QAccessible::Name || !isValid())
            return {};
        const ChartLayout& places = m_chart.places();
        const QString value = places.valueText(m_row);
        return places.matrix().rows[m_row] + u"，"_s + (value.isEmpty() ? u"没有数值"_s : value + ChartLayout::unit());
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid())
            return {};
        const ChartLayout& places = m_chart.places();
        const double middle = places.middle(m_row, m_chart.scrolled()), pitch = places.pitch();
        const QRect slot = QRectF(middle - pitch / 2, 0, pitch, m_chart.height()).toRect();
        return {m_chart.mapToGlobal(slot.topLeft()), slot.size()};
    }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&m_chart); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

private:
    MSChart& m_chart;
    const int m_row;
};

void ChartAccessible::install() {
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* chart = qobject_cast<MSChart*>(object);
        return chart ? new ChartAccessible(*chart) : nullptr;
    });
}

void ChartAccessible::forget() const {
    for (const QAccessible::Id id : m_entries)
        QAccessible::deleteAccessibleInterface(id);
    m_entries.clear();
}

QString ChartAccessible::text(QAccessible::Text what) const {
    if (what == QAccessible::Name)
        return accessible::nameOf(m_chart);
    if (what != QAccessible::Description)
        return QAccessibleWidget::text(what);
    return m_chart.ChartData().isEmpty() ? u"还没有数据，画着的是示例"_s : u"共%1项"_s.arg(childCount());
}

int ChartAccessible::childCount() const {
    return static_cast<int>(m_chart.ChartData().size());
}

QAccessibleInterface* ChartAccessible::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    if (const QVariantList& data = m_chart.ChartData(); !m_told.isSharedWith(data)) {
        forget(); // what was told before is not what is there now
        m_told = data;
        m_entries.assign(static_cast<std::size_t>(data.size()), 0);
    }
    QAccessible::Id& id = m_entries[static_cast<std::size_t>(index)];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(new Entry(m_chart, index));
    return QAccessible::accessibleInterface(id);
}

int ChartAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* entry = dynamic_cast<const Entry*>(child);
    return entry && entry->isValid() ? entry->row() : -1;
}

} // namespace qinghe
