#include "core/row_buttons.h"

#include "platform/handlers.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr double Width = 1080, Height = 390, Gap = 120; // twips

CommandButton* button(QWidget* frame, QStringView name, QStringView caption, Glyph glyph) {
    auto* made = new CommandButton(frame, name.toString(), caption.toString());
    made->setGlyph(glyph);
    return made;
}

} // namespace

RowButtons::RowButtons(QWidget* frame, const RowButtonTraits& traits, MSFlexGrid& grid)
    : add(button(frame, traits.add, traits.addCaption, Glyph::Add)),
      remove(button(frame, traits.remove, u"删除", Glyph::Remove)),
      save(button(frame, traits.save, traits.saveCaption, Glyph::Accept)) {
    save->setRole(Role::Primary);
    save->place(traits.right - traits.saveWidth, traits.top, traits.saveWidth, Height);
    remove->place(save->Left() - Gap - Width, traits.top, Width, Height);
    add->place(remove->Left() - Gap - Width, traits.top, Width, Height);
    if (!traits.what.isEmpty())
        for (CommandButton* button : all())
            button->setAccessibleName(button->text() + traits.what.toString());
    // Pressed once more by chance they would add and delete once more.
    for (CommandButton* button : {add, remove})
        button->handKeyboardTo(&grid);
    QObject::connect(&grid, &MSFlexGrid::refreshed, save, [save = save, &grid] {
        save->setMark(grid.differsFromTable() ? u"这一页有改动还没有保存"_s : QString());
    });
}

void RowButtons::setUsable(bool usable) {
    for (CommandButton* button : all())
        button->setUsable(usable);
}

QString stopsTheSave(const QString& reason) {
    return reason.isEmpty() ? QString() : reason + u"，保存会在这里中断"_s;
}

bool isDeletionWanted(const Shared& shared) {
    return shared.services.say(u"是否需要删除?"_s, MessageStyle::OkCancelInformation, u"温馨提示"_s) == Answer::Ok;
}

void tellOfBlankRow(const Shared& shared) {
    shared.tell(u"当前有一条空记录"_s, u"温馨提示"_s);
}

void tellSaved(Shared& shared) {
    handlers::boundary(); // may still fail, and undo the save
    shared.saving.reset();
    shared.tell(u"保存成功"_s, u"保存提示"_s);
}

} // namespace qinghe
