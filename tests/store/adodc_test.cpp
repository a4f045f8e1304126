#include "store/store_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

class DataControl : public StoreTest {};

TEST_F(DataControl, HasNoRecordsetBeforeTheFirstRefresh) {
    EXPECT_FALSE(control.hasRecordset());
    EXPECT_EQ(errorOf([&] { control.recordset(); }, u"Adodc1"_s), RuntimeError::ObjectNotSet);
    control.setRecordSource(u"srb"_s);
    EXPECT_FALSE(control.hasRecordset());
    control.refresh();
    EXPECT_TRUE(control.hasRecordset());
}

TEST_F(DataControl, GoesByItsNameAndKeepsWhatItIsTold) {
    EXPECT_EQ(control.objectName(), u"Adodc1"_s);
    EXPECT_EQ(control.property("Visible"), QVariant(false));
    ASSERT_TRUE(control.setProperty("RecordSource", u"yhb"_s));
    EXPECT_EQ(control.recordSource(), u"yhb"_s);
    ASSERT_TRUE(control.setProperty("ConnectionString", u"x"_s));
    EXPECT_EQ(control.connectionString(), u"x"_s);
}

TEST_F(DataControl, ANewSourceDoesNotQueryUntilRefresh) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    control.setRecordSource(u"yhb"_s);
    EXPECT_EQ(control.recordset().field(0).name(), u"编号"_s);
    EXPECT_EQ(control.recordset().recordCount(), 1);
    control.refresh();
    EXPECT_EQ(control.recordset().field(0).name(), u"用户名"_s);
}

TEST_F(DataControl, WritesToTheSetInHandWhateverTheSourceSays) {
    control.open(u"select distinct 收入大类 from srflb"_s);
    control.setRecordSource(u"ysb"_s);
    add(control.recordset(), {{u"收入大类"_s, u"工资"_s}});
    EXPECT_EQ(control.open(u"ysb"_s).recordCount(), 0);
    EXPECT_EQ(control.open(u"srflb"_s).recordCount(), 1);
}

TEST_F(DataControl, RefreshStandsOnTheFirstRow) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    addIncome(u"2024-5-4"_s, u"奖金"_s, 200);
    Recordset& set = control.open(u"srb"_s);
    set.moveNext();
    control.refresh();
    EXPECT_EQ(control.recordset().field(u"项目").text(), u"工资"_s);
}

TEST_F(DataControl, AFailedRefreshLeavesTheSetInHand) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    EXPECT_EQ(errorOf([&] { control.open(u"nosuch"_s); }, u"nosuch"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(control.recordset().field(u"项目").text(), u"工资"_s);
}

TEST_F(DataControl, ConnectionWithoutAFileIsRefused) {
    control.setConnectionString(u"data.dll"_s);
    EXPECT_EQ(errorOf([&] { control.refresh(); }), RuntimeError::ProviderUnknown);
}

TEST_F(DataControl, TwoControlsShareTheFileAndItsUnitOfWork) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    EXPECT_TRUE(store.inTransaction());
    EXPECT_EQ(second.open(u"srb"_s).recordCount(), 1);
    EXPECT_TRUE(store.inTransaction());
}

TEST_F(DataControl, AnotherFileIsOpenedWhenTheConnectionNamesIt) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"other"_s));
    createStore(folder.filePath(u"other/data.dll"_s));
    control.setConnectionString(connectionText(folder.filePath(u"other"_s)));
    control.refresh();
    EXPECT_EQ(control.recordset().recordCount(), 0);
    EXPECT_EQ(second.open(u"srb"_s).recordCount(), 1); // written before the file was left
}

TEST_F(DataControl, OpeningGoesHomeFromWhereverItWasPointed) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    const QString home = control.connectionString();
    EXPECT_EQ(home, connectionText(folder.path()));
    for (const QString& elsewhere : {u"nowhere"_s, connectionText(folder.filePath(u"none"_s)), QString()}) {
        control.setConnectionString(elsewhere);
        EXPECT_EQ(control.open(u"srb"_s).recordCount(), 1);
        EXPECT_EQ(control.connectionString(), home);
    }
}

TEST_F(DataControl, ASetThatIsKeptOutlivesOtherRefreshes) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    addIncome(u"2024-5-4"_s, u"奖金"_s, 200);
    control.open(u"srb"_s).moveNext();
    const auto kept = control.loaded();
    control.open(u"yhb"_s);
    EXPECT_EQ(kept->records().field(u"项目").text(), u"奖金"_s);
    kept->records().deleteCurrent();
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 1);
}

TEST_F(DataControl, ASetIsReadAgainFromItsOwnSourceWhenTheFileWasClosed) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    control.open(u"srb"_s);
    const auto kept = control.loaded();
    control.setRecordSource(u"yhb"_s);
    addIncome(u"2024-5-4"_s, u"奖金"_s, 200); // into a set of its own
    EXPECT_EQ(kept->records().recordCount(), 1);
    store.close();
    EXPECT_EQ(kept->records().recordCount(), 2);
    EXPECT_EQ(kept->records().field(u"项目").text(), u"工资"_s);
    for (Recordset& again = kept->records(); !again.eof(); again.moveNext())
        again.deleteCurrent();
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
}

TEST_F(DataControl, ReloadingASetRunsItsSourceOnceMore) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    control.open(u"srb"_s);
    const auto kept = control.loaded();
    addIncome(u"2024-5-4"_s, u"奖金"_s, 200);
    kept->reload();
    EXPECT_EQ(kept->records().recordCount(), 2);
}

TEST_F(DataControl, ShowsASetThatWasLoadedBeforeOnItsFirstRowWithoutReadingItAgain) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 1);
    addIncome(u"2024-5-4"_s, u"利息"_s, 2);
    Recordset& set = control.open(u"srb"_s);
    const std::shared_ptr<LoadedSet> loaded = control.loaded();
    set.moveNext();
    second.open(u"srb"_s).deleteCurrent();
    control.setConnectionString(u"elsewhere"_s);
    control.open(u"select sum(金额) as 金额 from srb"_s);
    control.show(loaded);
    EXPECT_EQ(control.recordSource(), u"srb"_s);
    EXPECT_EQ(control.connectionString(), connectionText(folder.path()));
    EXPECT_EQ(&control.recordset(), &set);
    EXPECT_EQ(set.recordCount(), 2);
    EXPECT_EQ(set.field(u"项目"_s).text(), u"工资"_s);
    control.show(std::make_shared<LoadedSet>(store, path(), u"zcb"_s)); // an empty one
    EXPECT_TRUE(control.recordset().eof());
}

} // namespace
} // namespace qinghe
