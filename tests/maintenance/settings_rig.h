#pragma once

#include "support/program_test.h"

#include <QBuffer>
#include <QFile>

namespace qinghe::testing {

/// A program whose settings page is open.
class SettingsTest : public ProgramTest {
protected:
    SettingsTest() { start(); }

    void start() {
        rig.signIn();
        open();
    }
    void startAgain() {
        rig.stop();
        start();
    }
    void open() { go(pages::Settings); }
    void go(const QString& label) {
        rig.click(rig.onMain<Label>(label));
        rig.settle();
    }

    /// Every handler points the shared data control at the data file itself.
    void pointElsewhere() { rig.mainWindow().Adodc1->setConnectionString(u"Data Source=none.dll"_s); }
    CheckBox& box(const QString& name) { return rig.onMain<CheckBox>(name); }
    /// As a user does, beside the caption.
    static void tick(CheckBox& box) { QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2}); }
};

} // namespace qinghe::testing
