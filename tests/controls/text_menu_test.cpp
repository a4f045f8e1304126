#include "controls/combo_box.h"
#include "controls/long_text_box.h"
#include "window_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

// A right click in a text box offers what can be done with its text.

namespace qinghe::testing {
namespace {

class TextMenus : public WindowTest {
protected:
    TextMenus() { QGuiApplication::clipboard()->setText(u"贴"_s); }

    static QMenu* ask(QWidget& box) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, box.rect().center(), box.mapToGlobal(box.rect().center()));
        QCoreApplication::sendEvent(&box, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    /// The lines of a box's menu; those that cannot be used in brackets.
    static QStringList offered(QWidget& box) {
        QMenu* menu = ask(box);
        QStringList lines;
        for (const QAction* line : menu ? menu->actions() : QList<QAction*>())
            lines << (line->isEnabled() ? line->text() : u'(' + line->text() + u')');
        if (menu)
            menu->close();
        return lines;
    }
    static void choose(QWidget& box, const QString& words) {
        QMenu* menu = ask(box);
        ASSERT_TRUE(menu);
        for (QAction* line : menu->actions())
            if (line->text() == words)
                line->trigger();
        menu->close();
    }

    const QStringList all{u"撤销"_s, u"剪切"_s, u"复制"_s, u"粘贴"_s, u"全选"_s};
    TextBox& line = put<TextBox>(form, u"Text4"_s, {300, 300, 3000, 375});
    LongTextBox& lines = put<LongTextBox>(form, u"Text3"_s, {300, 900, 3000, 1200});
};

TEST_F(TextMenus, OfferTheSameInEveryKindOfBox) {
    auto& list = put<ComboBox>(form, u"Combo1"_s, {300, 2400, 3000, 375}, true);
    list.setText(u"买菜"_s);
    QTest::keyClicks(&line, u"cai"_s);
    QTest::keyClicks(&lines, u"cai"_s);
    QTest::keyClicks(list.lineEdit(), u"cai"_s);
    line.selectAll();
    lines.selectAll();
    list.lineEdit()->selectAll();
    EXPECT_EQ(offered(line), all);
    EXPECT_EQ(offered(*lines.viewport()), all);
    EXPECT_EQ(offered(*list.lineEdit()), all);
}

TEST_F(TextMenus, OfferNoMoreThanCanBeDone) {
    line.setBoxText(u"买菜"_s);
    EXPECT_EQ(offered(line), (QStringList{u"(撤销)"_s, u"(剪切)"_s, u"(复制)"_s, u"粘贴"_s, u"全选"_s}));
    line.selectAll();
    line.setReadOnly(true);
    EXPECT_EQ(offered(line), (QStringList{u"(撤销)"_s, u"(剪切)"_s, u"复制"_s, u"(粘贴)"_s, u"全选"_s}));
}

TEST_F(TextMenus, LeaveAPasswordWhereItIs) {
    line.setEchoMode(QLineEdit::Password);
    line.setBoxText(u"123456"_s);
    line.selectAll();
    EXPECT_EQ(offered(line), (QStringList{u"(撤销)"_s, u"(剪切)"_s, u"(复制)"_s, u"粘贴"_s, u"全选"_s}));
}

TEST_F(TextMenus, DoWhatTheySayWithoutAKeyPress) {
    int keys = 0, changes = 0;
    line.KeyPress = [&keys](int) { ++keys; };
    line.Change = [&changes] { ++changes; };
    choose(line, u"粘贴"_s);
    EXPECT_EQ(line.Text(), u"贴"_s);
    choose(line, u"全选"_s);
    choose(line, u"剪切"_s);
    EXPECT_EQ(line.Text(), QString());
    choose(line, u"撤销"_s);
    EXPECT_EQ(line.Text(), u"贴"_s);
    EXPECT_EQ(keys, 0);
    EXPECT_EQ(changes, 3);
}

TEST_F(TextMenus, AreNotOfferedByABoxThatCannotBeUsed) {
    line.setUsable(false);
    EXPECT_EQ(offered(line), QStringList());
}

} // namespace
} // namespace qinghe::testing
