#include "support/program_rig.h"

#include "store/adodc.h"
#include "store/header_toggle.h"
#include "store/header_vfs.h"
#include "store/schema.h"

#include <QBuffer>
#include <QFile>
#include <QSignalSpy>
#include <sqlite3.h>

namespace qinghe::testing {

using namespace Qt::StringLiterals;

namespace {

QByteArray smallPicture(Qt::GlobalColor colour) {
    QImage image(16, 12, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG");
    return bytes;
}

using Row = std::vector<std::pair<QString, Value>>;

void addRow(Store& store, const QString& table, const Row& row) {
    Recordset set(store, store.fetch(table));
    set.addNew();
    for (const auto& [name, value] : row) {
        if (const auto* bytes = std::get_if<QByteArray>(&value.data()))
            set.field(name).appendChunk(*bytes);
        else
            set.field(name).setValue(value);
    }
    set.update();
}

} // namespace

void writeDeliveredData(const QString& path) {
    createStore(path);
    {
        Store store;
        store.use(path);
        addRow(store, u"yhb"_s, {{u"用户名"_s, u"管理员"_s}, {u"用户密码"_s, u"123456"_s}, {u"区别"_s, 1}});
        addRow(store, u"登陆用户记录表"_s, {{u"用户名"_s, u"管理员"_s}, {u"密码"_s, u"123456"_s}});
        addRow(store, u"txb"_s, {{u"日程提醒"_s, false}});
        addRow(store, u"systuopanb"_s, {{u"最小化到托盘"_s, false}});
        const QByteArray skin = smallPicture(Qt::green), desktop = smallPicture(Qt::white);
        const QByteArray signIn = smallPicture(Qt::yellow);
        addRow(store, u"皮肤选择"_s,
               {{u"皮肤名"_s, u"青禾"_s}, {u"文件大小"_s, static_cast<int>(skin.size())}, {u"皮肤文件"_s, skin}});
        addRow(store, u"主界面"_s,
               {{u"名称"_s, u"桌面"_s}, {u"大小"_s, static_cast<int>(desktop.size())}, {u"文件"_s, desktop}});
        addRow(store, u"登陆皮肤"_s,
               {{u"名称"_s, u"登陆"_s}, {u"大小"_s, static_cast<int>(signIn.size())}, {u"皮肤"_s, signIn}});
        store.close();
    }
    spoilHeader(path);
}

ProgramRig::ProgramRig(const QString& folderName)
    : m_dir(std::make_unique<QTemporaryDir>()),
      m_folder(folderName.isEmpty() ? m_dir->path() : m_dir->filePath(folderName)) {
    QDir().mkpath(m_folder);
    writeDeliveredData(dataFile());
    m_spare = makeServices();
}

ProgramRig::~ProgramRig() {
    stop();
}

Services ProgramRig::makeServices() {
    Services services;
    const auto put = [](auto& place, auto*& view, auto made) {
        view = made.get();
        place = std::move(made);
    };
    const QDateTime time = clock ? clock->time : FixedClock().time;
    put(services.clock, clock, std::make_unique<FixedClock>());
    clock->time = time;
    put(services.messages, messages, std::make_unique<AnsweringMessages>());
    put(services.chooser, chooser, std::make_unique<AnsweringChooser>());
    put(services.tray, tray, std::make_unique<NotingTray>());
    put(services.launcher, launcher, std::make_unique<NotingLauncher>());
    put(services.sound, sound, std::make_unique<NotingSound>());
    put(services.instance, lock, std::make_unique<GivenLock>());
    put(services.background, background, std::make_unique<WaitingWork>());
    put(services.process, process, std::make_unique<NotedEnd>());
    services.appPath = folder();
    return services;
}

void ProgramRig::start() {
    program = std::make_unique<Program>(std::move(m_spare));
    program->start();
    settle();
}

void ProgramRig::signIn() {
    start();
    auto& password = at(sign_in::Password);
    if (password.Text().isEmpty())
        password.setText(u"123456"_s);
    click(at(sign_in::Enter));
    settle();
}

void ProgramRig::stop() {
    if (!program)
        return;
    const QDateTime time = clock->time;
    program.reset();
    clock = nullptr; // gone with the program; makeServices would read it
    settle();
    m_spare = makeServices();
    clock->time = time;
}

void ProgramRig::click(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void ProgramRig::doubleClick(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton);
    QTest::mouseDClick(&widget, Qt::LeftButton);
}

void ProgramRig::press(QWidget& widget, Qt::Key key) {
    QTest::keyClick(&widget, key);
}

void ProgramRig::type(QWidget& widget, const QString& text) {
    for (const QChar character : text) {
        QKeyEvent down(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(&widget, &down);
        QKeyEvent up(QEvent::KeyRelease, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(&widget, &up);
    }
}

void ProgramRig::hover(QWidget& widget) {
    const QPointF at = widget.rect().center();
    QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}

void ProgramRig::clickCell(MSFlexGrid& grid, int row, int col) {
    grid.ensureVisible(row, col);
    const QPoint at = grid.viewport()->mapFrom(&grid, grid.cellRect(row, col).center());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, at);
}

void ProgramRig::settle() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

QString ProgramRig::rowText(const MSFlexGrid& grid, int row) {
    QStringList cells;
    for (int col = 1; col < grid.Cols(); ++col)
        cells << grid.TextMatrix(row, col);
    return cells.join('|'_L1);
}

QStringList ProgramRig::sql(const QString& text) {
    const bool spoilt = headerBytes() == QByteArray("\0\0", 2);
    if (spoilt)
        healHeader(dataFile());
    sqlite3* db = nullptr;
    QStringList rows;
    if (sqlite3_open_v2(QFile::encodeName(dataFile()).constData(), &db, SQLITE_OPEN_READWRITE, headerVfsName()) !=
        SQLITE_OK)
        qFatal("cannot open the data file");
    const auto take = [](void* out, int count, char** values, char**) {
        QStringList cells;
        for (int i = 0; i < count; ++i)
            cells << (values[i] ? QString::fromUtf8(values[i]) : u"NULL"_s);
        static_cast<QStringList*>(out)->push_back(cells.join('|'_L1));
        return 0;
    };
    char* error = nullptr;
    if (sqlite3_exec(db, text.toUtf8().constData(), take, &rows, &error) != SQLITE_OK)
        qFatal("%s: %s", qPrintable(text), error);
    sqlite3_close(db);
    if (spoilt)
        spoilHeader(dataFile());
    return rows;
}

QByteArray ProgramRig::headerBytes() const {
    QFile file(dataFile());
    if (!file.open(QIODevice::ReadOnly) || !file.seek(1))
        return {};
    return file.read(2);
}

} // namespace qinghe::testing
