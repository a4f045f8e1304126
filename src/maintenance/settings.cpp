#include "maintenance/settings.h"

#include "core/hover.h"

namespace qinghe {

using namespace Qt::StringLiterals;

SettingsPage::SettingsPage(MainWindow& window)
    : QObject(&window),
      Frame20(new Frame(&window.navigation().frame(u"Frame16"_s), u"Frame20"_s, u"系统设置"_s)),
      Command31(new CommandButton(Frame20, u"Command31"_s, u"收支分类设置"_s)) {
    Frame20->place(240, 480, 5520, 4200);
    Frame20->setRole(Role::InnerFrame);
    Command31->place(360, 3450, 1920, 390);
    Command31->setGlyph(Glyph::List);
    markHovered(*Frame20, {Command31});
    Command31->Click = [this, &bench = window.bench()] {
        unmarkHovered({Command31}); // the pointer will not be here when the page comes back
        bench.openCategories();
    };
}

} // namespace qinghe
