#pragma once

#include "controls/buttons.h"
#include "controls/cell_editor.h"

#include <functional>

namespace qinghe {

/// What keys do in a list beyond moving its current cell. F2, Enter or Space opens the box as a click on the cell does,
/// by the same handler; so does a character, typed or composed, and then the text begins with it. Esc closes the box,
/// Delete presses the button that deletes. A tool that has opened for the cell takes what is typed before its window
/// has the keyboard.
class CellKeys : public QObject {
    Q_OBJECT

public:
    /// What a key pressed in the box does is `boxKey`.
    CellKeys(MSFlexGrid& grid, CellEditor& box, std::function<void(int)> boxKey);

    /// Whether a character may open the current cell; asked when one is typed. Every cell, where nothing else is said.
    std::function<bool()> takesTyping;
    /// The tool that takes what is typed for the open cell in place of the box, or nullptr.
    std::function<QWidget*()> tool;
    /// The button that deletes the current row.
    CommandButton* remove = nullptr;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool keyPressed(QKeyEvent& key);
    bool pressed(QKeyEvent& key);
    bool pressedUnderBox(QKeyEvent& key);
    bool composed(QInputMethodEvent& event);
    bool answered(QInputMethodQueryEvent& query) const;
    bool begin(QEvent& text);
    void handOver(QEvent& text);
    QWidget* openTool() const { return tool ? tool() : nullptr; }

    MSFlexGrid& m_grid;
    CellEditor& m_box;
    std::function<void(int)> m_boxKey;
};

} // namespace qinghe
