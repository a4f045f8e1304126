#pragma once

#include "analysis/ms_chart.h"

#include <QAccessibleWidget>

namespace qinghe {

/// A chart as it is told: a list of its labels, each with its value. A sample is told to be one, and has no list.
class ChartAccessible : public QAccessibleWidget {
public:
    explicit ChartAccessible(MSChart& chart) : QAccessibleWidget(&chart, QAccessible::Chart), m_chart(chart) {}
    ~ChartAccessible() override { forget(); }

    /// From here on charts are told in this way; harmless when it was done before.
    static void install();

    QString text(QAccessible::Text what) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    class Entry;
    void forget() const;

    MSChart& m_chart;
    mutable QVariantList m_told; ///< what the entries are of
    mutable std::vector<QAccessible::Id> m_entries;
};

} // namespace qinghe
