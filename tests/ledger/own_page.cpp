#include "ledger/own_page.h"

namespace qinghe::testing {

void OwnPage::open(int pageCode) {
    handlers::enter([&] {
        openBlank(pageCode, 1);
        Adodc1.setConnectionString(bench.connection());
        fill(Adodc1.open(m_table));
    });
}

void OwnPage::openBlank(int pageCode, int rows) {
    handlers::enter([&] {
        window.navigation().leaveOthers(pageCode);
        window.navigation().bringForward(pageCode);
        layOut();
        startRows();
        blankRow(1);
        grid->setRows(rows + 1);
        hideEditor();
    });
}

GridPage::Traits OwnPageTest::traitsOn(const char16_t* frame, std::span<const GridPage::Column> columns) {
    return {.frame = frame,
            .grid = u"ownGrid",
            .editor = u"ownBox",
            .add = u"ownAdd",
            .remove = u"ownRemove",
            .save = u"ownSave",
            .columns = columns};
}

void OwnPageTest::write(const QString& text) {
    box().selectAll();
    rig.type(box(), text);
}

bool OwnPageTest::isOpen(const QString& tool) {
    const Form* form = rig.loaded(tool);
    return form && form->isVisible();
}

QStringList OwnPageTest::rows() {
    QStringList texts;
    for (int row = 1; row < grid().Rows(); ++row)
        texts << ProgramRig::rowText(grid(), row);
    return texts;
}

} // namespace qinghe::testing
