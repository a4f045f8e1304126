#pragma once

#include "maintenance/backup_window.h"
#include "support/program_test.h"

#include <QFile>

namespace qinghe::testing {

/// A program whose settings page is open.
class BackupTest : public ProgramTest {
protected:
    BackupTest() {
        rig.signIn();
        rig.click(rig.at(pages::Settings));
        rig.settle();
    }

    OptionButton& backup() { return rig.at(settings::Backup); }
    OptionButton& restore() { return rig.at(settings::Restore); }
    void openFor(OptionButton& option) {
        QTest::mouseClick(&option, Qt::LeftButton, {}, {8, option.height() / 2});
        rig.settle();
    }
    Form* window() { return rig.loaded(forms::Backup); }
    template<class T>
    T& inWindow(const QString& name) {
        return rig.control<T>(forms::Backup, name);
    }
    CommandButton& start() { return inWindow<CommandButton>(backup::Start); }

    /// Starts the copying and names this file when asked.
    void startWith(const QString& path) {
        rig.chooser->names = {path};
        rig.click(start());
    }
    void backUpTo(const QString& name) {
        openFor(backup());
        startWith(rig.file(name));
    }
    void restoreFrom(const QString& name) {
        openFor(restore());
        startWith(rig.file(name));
    }
};

inline const ShownMessage AskedWhereTo{u"请指定数据库备份的位置。"_s, 1, u"备份提示"_s};
inline const ShownMessage AskedWhereFrom{u"请指定要还原的数据库备份文件所在的位置。"_s, 1, u"还原提示"_s};
inline const ShownMessage BackedUp{u"备份完成。"_s, 0, {}};
inline const ShownMessage Restored{u"还原完毕。"_s, 0, {}};

} // namespace qinghe::testing
