#pragma once

#include "plotting.h"

#include <QColor>

namespace qinghe {

/// The columns of one series: round at their far ends, in amber where they hang below the axis. A value that is not a
/// number has no column.
class RoundedColumns : public QCPBars {
public:
    struct Shade {
        QColor top, foot;
    };
    RoundedColumns(QCPAxis* rows, QCPAxis* values, Shade shade);

protected:
    void draw(QCPPainter* painter) override;

private:
    void paintColumn(QPainter& painter, const QRectF& room, bool hanging) const;

    Shade m_shade;
};

} // namespace qinghe
