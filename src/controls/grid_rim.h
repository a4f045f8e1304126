#pragma once

#include <QWidget>

namespace qinghe {

/// The edge of a grid lies over all its parts, since cells reach to the grid's own border. The mouse passes it.
class GridRim : public QWidget {
public:
    explicit GridRim(QWidget* grid) : QWidget(grid) { setAttribute(Qt::WA_TransparentForMouseEvents); }

    /// Lies round the whole grid, above all that lies on it.
    void cover();

protected:
    void paintEvent(QPaintEvent*) override;
};

} // namespace qinghe
