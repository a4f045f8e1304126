#include "core/cell_editing.h"

#include "controls/key_presses.h"

namespace qinghe {

CellEditing::CellEditing(QWidget* frame, QStringView name, MSFlexGrid& grid)
    : box(new CellEditor(frame, name.toString(), grid)), m_grid(grid) {
    box->KeyPress = [this](int key) { keyPressed(key); };
}

void CellEditing::open() {
    box->lay();
    box->setShown(true);
    box->takeFocus();
    box->selectText();
}

void CellEditing::close() {
    box->setShown(false);
}

void CellEditing::commit() {
    m_grid.setText(box->Text());
}

void CellEditing::commitTyped() {
    if (!box->Text().isEmpty())
        commit();
}

void CellEditing::commitAndClose() {
    commit();
    close();
}

void CellEditing::keyPressed(int key) {
    if (key == key_presses::Escape) {
        close();
        m_grid.takeFocus();
    } else if (key == key_presses::Enter) {
        entered();
    }
}

} // namespace qinghe
