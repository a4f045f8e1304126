#include "core/cell_editing.h"

#include "controls/key_presses.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr double TagRoom = 1200, NoteTop = 60, NoteHeight = 270; // twips

} // namespace

CellEditing::CellEditing(QWidget* frame, QStringView name, MSFlexGrid& grid)
    : box(new CellEditor(frame, name.toString(), grid)),
      keys(grid, *box, [this](int key) { keyPressed(key); }),
      m_grid(grid),
      m_unsaved(new Label(frame, {})) {
    box->KeyPress = [this](int key) { keyPressed(key); };
    m_unsaved->setRole(Role::Help);
    m_unsaved->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_unsaved->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_unsaved->setShown(false);
    m_unsaved->setAnnounced();
}

void CellEditing::tellUnsaved(const QString& words) {
    m_unsaved->setCaption(words);
    m_unsaved->place(m_grid.Left() + TagRoom, NoteTop, m_grid.Width() - TagRoom, NoteHeight);
    m_unsaved->setShown(!words.isEmpty());
}

void CellEditing::open() {
    tellUnsaved({});
    box->lay();
    box->setShown(true);
    box->takeFocus();
    box->selectText();
}

void CellEditing::close() {
    tellUnsaved({});
    box->setShown(false);
}

void CellEditing::closeSaved() {
    const QString words =
        box->differsFromCell()
            ? u"第%1行“%2”没有按回车，没有保存"_s.arg(QString::number(box->row()), m_grid.TextMatrix(0, box->col()))
            : QString();
    close();
    tellUnsaved(words);
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
