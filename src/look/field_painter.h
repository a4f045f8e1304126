#pragma once

#include <QObject>
#include <QRect>

class QLineEdit;
class QPainter;
class QPlainTextEdit;
class QStyleOptionComboBox;
class QStyleOption;
class QWidget;

namespace qinghe {

class MSFlexGrid;

/// The room of a cell's text, in pixels from the cell's edges, and the size of its type. The editor that lies over
/// the cell keeps to the same.
struct CellMargins {
    int left, right;
    double points;
};
CellMargins cellMargins(const MSFlexGrid& grid, int col);

/// Makes an editor's type and alignment those of the cell it lies over: the current one of the grid beneath it.
void fitEditor(QLineEdit& editor);

/// The box behind a line of text, and the room of its text.
void paintField(const QStyleOption& option, QPainter& painter, const QWidget* widget);
QRect fieldText(const QRect& field, const QWidget* widget);

/// Whether a one-line box has the room for its text. The calculator's display shows the end of a longer one behind "…".
bool showsWhole(const QLineEdit& box);

/// The writing paper behind a long text: a rule below every line. To be painted before the text.
void paintWritingPaper(const QPlainTextEdit& text);

/// A list with its arrow; the words of one that is not typed into.
void paintCombo(const QStyleOption& option, QPainter& painter);
void paintComboWords(const QStyleOptionComboBox& option, QPainter& painter);

} // namespace qinghe
