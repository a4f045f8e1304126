#include "controls/combo_box.h"
#include "controls/controls.h"
#include "controls/form.h"
#include "controls/ms_flex_grid.h"
#include "look/look.h"

#include <QApplication>
#include <QDateTime>
#include <QImage>
#include <QMessageBox>
#include <QPlainTextEdit>

/// Paints all controls in their states on one page and saves it as a picture: look_gallery <picture.png> [skin.jpg].
/// Run it with QT_SCALE_FACTOR 1, 1.5 and 2 and look.
namespace qinghe {
namespace {

using namespace Qt::StringLiterals;

class Gallery : public Form {
public:
    Gallery() : Form(u"Gallery"_s, Kind::Frameless, Ground::Main) {
        place(0, 0, 12000, 8100);
        band();
        page();
        marks();
        fields();
        grid();
    }

private:
    template<class Control>
    Control* at(Control* control, double left, double top, double width, double height) {
        control->place(left, top, width, height);
        return control;
    }

    Label* words(QWidget* parent, Role role, const QString& text, double left, double top, double width,
                 double height) {
        auto* label = new Label(parent, u"words"_s, text);
        label->setRole(role);
        return at(label, left, top, width, height);
    }

    void band() {
        words(this, Role::ProductName, u"青禾家庭记账本"_s, 960, 240, 2175, 375);
        words(this, Role::ClockText, u"系统时间：2024-6-18"_s, 960, 690, 2000, 330);
        words(this, Role::ClockText, u"20:36:08"_s, 3000, 690, 1000, 330);
        words(this, Role::Link, u"qinghe.example"_s, 9375, 690, 2280, 330);
        const Glyph glyphs[] = {Glyph::Borrow, Glyph::Info, Glyph::Tools, Glyph::Minimise, Glyph::Close};
        const double lefts[] = {9510, 10095, 10530, 10965, 11400};
        for (int i = 0; i < 5; ++i) {
            auto* image = at(new Image(this, u"image"_s), lefts[i], 150, 375, 375);
            image->setRole(Role::Glyph);
            image->setGlyph(glyphs[i]);
        }
        const QStringView captions[] = {u"  桌面", u"  收入", u"  支出", u"  暂借", u"  储蓄", u"  预算",
                                        u"  图表", u" 用户",  u"  日记", u"  日程", u" 设置"};
        const double places[] = {0, 1080, 2160, 3240, 4320, 5400, 6480, 7680, 8640, 9720, 10920};
        for (int i = 0; i < 11; ++i) {
            Label* label = words(this, Role::PageLabel, captions[i].toString(), places[i], 1080, 960, 480);
            label->setForeColor(i == 1 || i == 7 ? 255 : 0); // the page in view, and one under the pointer
            if (i == 1)
                label->setRole(Role::ChosenLabel);
        }
    }

    void page() {
        m_page = at(new Frame(this, u"page"_s, u"收入记录"_s), 120, 1680, 11655, 6255);
        m_page->setRole(Role::PageFrame);
        words(m_page, Role::Total, u"当前收入总额为：16116.85元"_s, 240, 5760, 5000, 375);
        words(m_page, Role::Figure, u"16116.85元"_s, 9000, 5760, 1560, 300);
    }

    CommandButton* button(const QString& text, Glyph glyph, double left, double width) {
        auto* made = at(new CommandButton(m_page, u"button"_s, text), left, 345, width, 390);
        made->setGlyph(glyph);
        return made;
    }

    void marks() {
        button(u"增加"_s, Glyph::Add, 240, 1080);
        button(u"悬停"_s, Glyph::Add, 1440, 1080)->setBackColor(0xE0E0E0);
        button(u"按下"_s, Glyph::Add, 2640, 1080)->setDown(true);
        focusOne = button(u"焦点"_s, Glyph::Remove, 3840, 1080);
        button(u"保存"_s, Glyph::Accept, 5040, 1080)->setRole(Role::Primary);
        button(u"停用"_s, Glyph::Add, 6240, 1080)->setEnabled(false);
        button(u"A&B 保存日志"_s, Glyph::None, 7440, 1380);
        const QStringView names[] = {u"选项", u"选中", u"停用"};
        for (int i = 0; i < 3; ++i) {
            auto* group = at(new Frame(m_page, u"group"_s), 240 + 1200 * i, 840, 1100, 300);
            group->setRole(Role::BareFrame);
            auto* option = at(new OptionButton(group, u"option"_s, names[i].toString()), 0, 0, 1100, 300);
            option->setValue(i > 0);
            option->setEnabled(i < 2);
            auto* tick = at(new CheckBox(m_page, u"tick"_s, names[i].toString()), 4000 + 1200 * i, 840, 1100, 300);
            tick->setValue(i > 0);
            tick->setEnabled(i < 2);
        }
    }

    void fields() {
        for (int i = 0; i < 3; ++i) {
            auto* box = at(new TextBox(m_page, u"box"_s), 240 + 2000 * i, 1260, 1800, 330);
            box->setBoxText(i == 2 ? u"停用"_s : u"2024-6-18 文本框"_s);
            box->setEnabled(i < 2);
        }
        auto* typed = at(new ComboBox(m_page, u"typed"_s, true), 6240, 1260, 1500, 330);
        auto* chosen = at(new ComboBox(m_page, u"chosen"_s, false), 7920, 1260, 1500, 330);
        for (ComboBox* combo : {typed, chosen}) {
            combo->addEntry(u"水田晨曦"_s);
            combo->setText(u"水田晨曦"_s);
        }
        auto* progress = at(new ProgressBar(m_page, u"progress"_s), 7920, 840, 3440, 285);
        progress->setValue(45);
        auto* paper = new QPlainTextEdit(m_page);
        paper->setGeometry(pixelRect(6720, 1740, 4815, 1300));
        paper->setPlainText(
            u"周六天没亮就出门，坐头一班车回了乡下。田里刚放过水，秧苗绿得发亮，风一吹像一匹布在抖。"_s);
        auto* inner = at(new Frame(m_page, u"inner"_s, u"提醒设置"_s), 6720, 3150, 2400, 1300);
        inner->setRole(Role::InnerFrame);
        words(inner, Role::Plain, u"日期设置："_s, 240, 300, 1200, 330);
        words(inner, Role::Help, u"< 删除的记录将无法恢复，请您在确定删除后再进行删除操作。>"_s, 240, 660, 2100, 600);
        words(m_page, Role::Caution, u"以下操作不能恢复，请先备份"_s, 9240, 3150, 2295, 650);
        words(m_page, Role::Well, {}, 9240, 3900, 2295, 550);
        words(m_page, Role::Plain, u"设置为：2024-6-18日20时 0分，提醒音乐为：音乐2"_s, 9320, 3900, 2150, 550);
        auto* strip = at(new Frame(m_page, u"strip"_s, u"查询"_s), 6720, 4500, 4815, 615);
        strip->setRole(Role::StripFrame);
        at(new TextBox(strip, u"from"_s), 1080, 240, 1215, 270)->setBoxText(u"2024-6-1"_s);
        at(new CommandButton(strip, u"ask"_s, u"查询"_s), 2500, 240, 615, 255);
        words(m_page, Role::PlanList, u"日程 1：上午带小满去社区医院打疫苗\r\n日程 2：下班路上买米和酱油\r\n"_s, 6720,
              5200, 2775, 1000);
        auto* disc = at(new Image(m_page, u"disc"_s), 10500, 5250, 660, 660);
        disc->setRole(Role::GlyphDisc);
        disc->setGlyph(Glyph::Bell);
    }

    void grid() {
        for (int which = 0; which < 2; ++which) {
            auto* grid = at(new MSFlexGrid(m_page, u"grid"_s), 120, 1740 + 2000 * which, 6480, which ? 1900 : 1860);
            grid->setCols(5);
            grid->setRows(which ? 20 : 5);
            const double widths[] = {300, 1150, 1150, which ? 847.0 : 1150.0, 1900};
            const QStringView captions[] = {u"", u"编号", u"时间", u"金额", u"备注"};
            for (int col = 0; col < 5; ++col) {
                grid->setColWidth(col, widths[col]);
                grid->setTextMatrix(0, col, captions[col].toString());
            }
            grid->setAmountColumns({3});
            for (int row = 1; row < grid->Rows(); ++row) {
                grid->setTextMatrix(row, 1, u"06%1"_s.arg(row, 2, 10, QChar(u'0')));
                grid->setTextMatrix(row, 2, u"2024-6-%1"_s.arg(row));
                grid->setTextMatrix(row, 3, row == 2 ? u"123456789012.85"_s : u"%1.5"_s.arg(row * 137));
                grid->setTextMatrix(row, 4, u"五月工资，含全勤"_s);
            }
            grid->setRow(3);
            grid->setCol(which ? 3 : 2);
            if (which == 0) {
                auto* editor = new TextBox(m_page, u"editor"_s);
                editor->setRole(Role::CellEditor);
                at(editor, 120 + grid->ColPos(2), 1740 + grid->RowPos(3), 1150, 300)->setBoxText(u"2024-6-3"_s);
                editor->raise();
                grid->setRow(3);
            }
        }
    }

    Frame* m_page = nullptr;

public:
    CommandButton* focusOne = nullptr;
};

} // namespace
} // namespace qinghe

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    qinghe::dress(app);
    qinghe::Gallery gallery;
    if (argc > 2)
        gallery.setPicture(QImage(QString::fromLocal8Bit(argv[2])));
    gallery.showForm();
    gallery.activateWindow();
    gallery.focusOne->setFocus();
    QApplication::processEvents();
    return argc > 1 && gallery.grab().save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
