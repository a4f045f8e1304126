#include "core_fixture.h"
#include "store/migrations.h"

namespace qinghe::testing {
namespace {

/// The data file of a later program.
class LaterVersion : public CoreTest {
protected:
    QByteArray dataFile() const { return bytes(u"data.dll"_s); }
    void number(int version) {
        rig.start(); // heals the header
        rig.stop();
        rig.sql(u"pragma user_version = %1"_s.arg(version));
    }
};

TEST_F(LaterVersion, IsRefusedAtTheStartWithNothingChanged) {
    number(CurrentVersion + 1);
    for (const QByteArray& mark : {Healed, Spoilt}) {
        write(u"data.dll"_s, dataFile().replace(1, 2, mark));
        const QByteArray before = dataFile();
        const QStringList files = folder();
        rig.start();
        expectError(RuntimeError::StoreFailure, u"请安装新版的程序"_s);
        rig.stop();
        EXPECT_TRUE(dataFile() == before);
        EXPECT_EQ(folder(), files);
    }
}

TEST_F(LaterVersion, IsReadAgainWhenItHasOurNumber) {
    number(CurrentVersion + 1);
    rig.start();
    rig.stop();
    rig.sql(u"pragma user_version = %1"_s.arg(CurrentVersion));
    rig.signIn();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_TRUE(main().isVisible());
}

} // namespace
} // namespace qinghe::testing
