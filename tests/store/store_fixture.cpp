#include "store/store_fixture.h"

#include "store/header_vfs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace qinghe {

int errorOf(const std::function<void()>& action, const QString& named) {
    try {
        action();
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.text().contains(named)) << error.what();
        return error.number();
    }
    return 0;
}

OtherProgram::OtherProgram(const QString& path, const char* vfs) {
    const int code =
        sqlite3_open_v2(path.toUtf8().constData(), &m_database, SQLITE_OPEN_READWRITE, vfs ? vfs : headerVfsName());
    if (code != SQLITE_OK)
        throw std::runtime_error("the other program can not open the file");
}

OtherProgram::~OtherProgram() {
    sqlite3_close(m_database);
}

void OtherProgram::run(const QString& sql) {
    if (sqlite3_exec(m_database, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_database));
}

QStringList OtherProgram::rows(const QString& sql) {
    QStringList result;
    const auto collect = [](void* list, int count, char** values, char**) {
        QStringList fields;
        for (int i = 0; i < count; ++i)
            fields += values[i] ? QString::fromUtf8(values[i]) : u"NULL"_s;
        static_cast<QStringList*>(list)->append(fields.join(u'|'));
        return 0;
    };
    if (sqlite3_exec(m_database, sql.toUtf8().constData(), collect, &result, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_database));
    return result;
}

namespace {

/// Making the file durably takes long; each test gets a copy.
const QByteArray& freshFile() {
    static const QByteArray bytes = [] {
        const QTemporaryDir folder;
        createStore(folder.filePath(u"data.dll"_s));
        QFile file(folder.filePath(u"data.dll"_s));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }();
    return bytes;
}

} // namespace

StoreTest::StoreTest() {
    setFileBytes(freshFile());
}

void StoreTest::useVersion(int version) const {
    const QDir here = QFileInfo(QString::fromUtf8(__FILE__)).dir();
    QFile old(here.filePath(u"versions/%1.data"_s.arg(version)));
    ASSERT_TRUE(old.open(QIODevice::ReadOnly)) << old.fileName();
    setFileBytes(old.readAll());
}

QByteArray StoreTest::fileBytes() const {
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void StoreTest::setFileBytes(const QByteArray& bytes) const {
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
}

void StoreTest::add(Recordset& set, const std::vector<std::pair<QString, Value>>& fields) {
    set.addNew();
    for (const auto& [name, value] : fields)
        set.field(name).setValue(value);
    set.update();
}

QStringList StoreTest::column(Recordset& set, const QString& name) {
    QStringList texts;
    if (set.recordCount() > 0)
        set.moveFirst();
    for (; !set.eof(); set.moveNext())
        texts += set.field(name).isNull() ? u"NULL"_s : set.field(name).text();
    return texts;
}

void StoreTest::addIncome(const QString& date, const QString& item, double amount) {
    add(control.open(u"srb"_s), {{u"时间"_s, date}, {u"项目"_s, item}, {u"金额"_s, amount}});
}

} // namespace qinghe
