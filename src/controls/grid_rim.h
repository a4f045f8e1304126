#pragma once

#include <QWidget>

namespace qinghe {

/// The edge of a grid lies over all its parts, since cells reach to the grid's own border. It shows whether the grid
/// has the keyboard. The mouse passes it.
class GridRim : public QWidget {
public:
    explicit GridRim(QWidget* grid);

    /// Lies round the whole grid, above all that lies on it.
    void cover();

protected:
    void paintEvent(QPaintEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace qinghe
