#pragma once

#include "controls/combo_box.h"
#include "support/page_rig.h"

namespace qinghe::testing {

inline constexpr GridList Users{
    .name = "Users",
    .label = pages::Users,
    .frame = users::Page,
    .grid = users::Grid,
    .box = users::Box,
    .add = users::Add,
    .remove = users::Remove,
    .save = users::Save,
    .captions = u"用户名|用户密码",
    .table = u"yhb",
    .values = u"'人' || n, '密码' || n, n",
    .firstRow = u"人1|密码1",
    .text = 1,
    .refusalMovesRow = false,
};

/// The page of users, signed in by one who is not in the table any more.
class UsersTest : public PageTest {
protected:
    UsersTest() : PageTest(Users) { rig.sql(u"delete from yhb"_s); }

    void storeUser(const QString& name, const QString& password) {
        rig.sql(u"insert into yhb values('%1','%2',1)"_s.arg(name, password));
    }
    /// Ends the program and starts it anew, up to the sign-in.
    void startAnew() {
        rig.stop();
        rig.start();
    }
    void trySignIn(const QString& name, const QString& password) {
        names().setText(name);
        rig.at(sign_in::Password).setText(password);
        press(rig.at(sign_in::Enter));
    }
    ComboBox& names() { return rig.at(sign_in::User); }
};

inline const ShownMessage UserGap{u"为了保存信息的完整性，\r\n记录内容不能为空！"_s, 64, u"输入提示"_s};

} // namespace qinghe::testing
