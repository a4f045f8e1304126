#include "maintenance/skin_choice.h"

#include "core/grid_rows.h"
#include "core/hover.h"
#include "core/stored_picture.h"

namespace qinghe {

using namespace Qt::StringLiterals;

SkinChoice::SkinChoice(MainWindow& form, Frame& place)
    : QObject(&form),
      Check10(new CheckBox(&place, u"Check10"_s, u"更换记账本皮肤"_s)),
      Combo2(new ComboBox(&place, u"Combo2"_s, false)),
      Command30(new CommandButton(&place, u"Command30"_s, u"确定"_s)),
      m_window(form),
      m_shared(form.shared()),
      Adodc1(*form.Adodc1) {
    Check10->place(360, 1800, 4000, 330);
    Combo2->place(690, 2310, 2640, 330);
    Command30->place(3480, 2280, 1080, 390);
    Command30->setRole(Role::Primary);
    Combo2->setAccessibleName(u"记账本皮肤"_s);
    Command30->setGlyph(Glyph::Accept);
    showHandOver(Check10);
    Check10->Click = [this] { Form2_Check10_Click(); };
    Combo2->Click = [this] { Form2_Combo2_Click(); };
    Command30->Click = [this] { Form2_Command30_Click(); };
}

void SkinChoice::hide() {
    Combo2->setShown(false);
    Command30->setShown(false);
    unmarkHovered({Command30}); // the pointer may be elsewhere when it comes back
}

void SkinChoice::listSkins() {
    for (Recordset& skins = Adodc1.open(OfferedSkins.source.toString()); !skins.eof(); skins.moveNext())
        Combo2->addEntry(skins.field(OfferedSkins.table.name).text());
    Combo2->setShown(true);
}

void SkinChoice::closeList() {
    Combo2->clearEntries();
    Combo2->setShown(false);
}

void SkinChoice::Form2_Check10_Click() {
    if (Check10->Value())
        listSkins();
    else
        closeList();
}

void SkinChoice::Form2_Combo2_Click() {
    Command30->setShown(true);
    // The name goes into the query as it stands: one with an apostrophe breaks it.
    const PictureBytes skin = readPicture(NamedSkin, Adodc1, Combo2->Text() + '\''_L1);
    skinSize = skin.size;
    skinBytes = skin.bytes;
    if (const QImage picture = writeOut(NamedSkin, skinBytes, m_shared, m_window); !picture.isNull())
        m_window.setPicture(picture);
}

void SkinChoice::Form2_Command30_Click() {
    Check10->setValue(false); // whose click closes the list
    Command30->setShown(false);
    closeList();
    Recordset& chosen = Adodc1.open(tables::ChosenSkin.toString());
    emptyTable(chosen);
    chosen.addNew();
    // The list is empty by now, and with it the name that is stored; nothing reads it.
    chosen.field(ChosenSkin.table.name).setValue(Combo2->Text());
    chosen.field(ChosenSkin.table.size).setValue(static_cast<double>(skinSize));
    chosen.field(ChosenSkin.table.bytes).appendChunk(skinBytes);
    chosen.update();
    m_shared.tell(u"设置已保存"_s, u"提示"_s);
    hide();
}

} // namespace qinghe
