#include "support/program_test.h"

#include <QFile>

#include <algorithm>

namespace qinghe::testing {

using namespace Qt::StringLiterals;

void ProgramTest::press(QWidget& control) {
    rig.click(control);
    rig.settle();
}

void ProgramTest::typeOver(TextBox& box, const QString& text) {
    box.selectAll();
    if (text.isEmpty())
        rig.press(box, Qt::Key_Delete);
    rig.type(box, text);
}

QByteArray ProgramTest::bytes(const QString& name) const {
    QFile file(rig.file(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

void ProgramTest::write(const QString& name, const QByteArray& content) const {
    QFile file(rig.file(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QStringList ProgramTest::texts() const {
    QStringList texts;
    for (const ShownMessage& message : rig.messages->shown)
        texts << message.text;
    return texts;
}

void ProgramTest::expectError(int number, const QString& words) const {
    ASSERT_EQ(rig.messages->errors.size(), 1u);
    const auto& [told, text] = rig.messages->errors.front();
    EXPECT_EQ(told, number) << text.toStdString();
    EXPECT_TRUE(text.contains(words)) << text.toStdString();
    EXPECT_TRUE(std::any_of(text.begin(), text.end(), [](QChar c) { return c.script() == QChar::Script_Han; }));
    EXPECT_EQ(rig.process->codes, std::vector<int>{1});
}

QString ProgramTest::rescuedText() const {
    const QStringList files = QDir(rig.folder()).entryList({u"没有保存的内容*.txt"_s});
    EXPECT_LE(files.size(), 1);
    return files.isEmpty() ? QString() : QString::fromUtf8(bytes(files.front()));
}

QStringList ProgramTest::rowsOf(const MSFlexGrid& grid) {
    QStringList texts;
    for (int row = 1; row < grid.Rows(); ++row)
        texts << ProgramRig::rowText(grid, row);
    return texts;
}

QString ProgramTest::currentOf(const MSFlexGrid& grid) {
    return u"%1,%2"_s.arg(grid.Row()).arg(grid.Col());
}

void ProgramTest::expectOver(const TextBox& box, MSFlexGrid& grid, int row, int col) {
    EXPECT_DOUBLE_EQ(box.Left(), grid.Left() + grid.ColPos(col));
    EXPECT_DOUBLE_EQ(box.Top(), grid.Top() + grid.RowPos(row));
    EXPECT_DOUBLE_EQ(box.Width(), grid.ColWidth(col));
    EXPECT_DOUBLE_EQ(box.Height(), 300);
    EXPECT_EQ(box.geometry(), grid.cellRect(row, col).translated(grid.pos()));
}

} // namespace qinghe::testing
