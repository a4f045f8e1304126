#pragma once

#include "controls/combo_box.h"
#include "support/page_rig.h"

namespace qinghe::testing {

inline constexpr GridList Users{
    .name = "Users",
    .label = u"Label4",
    .option = u"",
    .frame = u"Frame7",
    .number = 5,
    .firstButton = 13,
    .table = u"yhb",
    .values = u"'人' || n, '密码' || n, n",
    .firstRow = u"人1|密码1",
    .text = 1,
    .refusalMovesRow = false,
};

/// The page of users, signed in by one who is not in the table any more.
class UsersTest : public PageTest {
protected:
    UsersTest() : PageTest(Users) { rig.sql(QStringLiteral("delete from yhb")); }

    void storeUser(const QString& name, const QString& password) {
        rig.sql(QStringLiteral("insert into yhb values('%1','%2',1)").arg(name, password));
    }
    /// Ends the program and starts it anew, up to the sign-in.
    void startAnew() {
        rig.stop();
        rig.start();
    }
    void trySignIn(const QString& name, const QString& password) {
        names().setText(name);
        rig.control<TextBox>(QStringLiteral("Form5"), QStringLiteral("Text2")).setText(password);
        press(rig.control<Label>(QStringLiteral("Form5"), QStringLiteral("Label1")));
    }
    ComboBox& names() { return rig.control<ComboBox>(QStringLiteral("Form5"), QStringLiteral("Combo1")); }
};

inline const ShownMessage UserGap{QStringLiteral("为了保存信息的完整性，\r\n记录内容不能为空！"), 64,
                                  QStringLiteral("输入提示")};

} // namespace qinghe::testing
