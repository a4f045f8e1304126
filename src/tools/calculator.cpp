#include "tools/calculator.h"

#include "controls/accessible.h"
#include "core/hover.h"
#include "look/field_painter.h"
#include "runtime/runtime_error.h"

#include <QKeyEvent>

#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

struct Operator {
    QStringView caption;
    QStringView spoken;              ///< its name for a screen reader
    double left, top, width, height; ///< twips
};

constexpr std::array<Operator, 6> Operators{{
    {u"+", u"加", 2400, 840, 480, 480},
    {u"-", u"减", 2400, 1440, 480, 480},
    {u"*", u"乘", 2400, 2040, 480, 480},
    {u"/", u"除以", 2400, 2640, 480, 480},
    {u"x^y", u"乘方", 3000, 840, 495, 600},
    {u"sqrt", u"平方根", 3000, 1560, 495, 960},
}};

} // namespace

Calculator::Calculator(Shared& shared)
    : FieldTool(names::Calculator, Kind::Tool, Ground::Calculator, shared.forms.loaded(names::Main)),
      m_shared(shared),
      Text1(new TextBox(this, u"Text1"_s)) {
    setCaption(u"数值输入-计算器"_s);
    place(0, 0, 3735, 3960);
    Text1->place(240, 240, 3255, 420);
    Text1->setRole(Role::CalcDisplay);
    Text1->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Text1->setAccessibleName(u"计算器显示"_s);
    Text1->setReadOnly(true);
    Text1->setFocusPolicy(Qt::NoFocus);
    Text1->setFocusProxy(this); // to who listens the keyboard is at the display, whose text is told as it changes
    showDisplay();
    makeKeys();
    MouseMove = [this](double, double) { unmarkHovered(m_keys); };
    CloseAsked = [this] { finish(); };
    setFocusPolicy(Qt::StrongFocus);
    setFocus(); // from when it is the window in front
}

CommandButton* Calculator::key(const QString& name, const QString& caption, double left, double top, double width,
                               double height) {
    auto* made = new CommandButton(this, name, caption);
    made->place(left, top, width, height);
    made->setRole(Role::CalcKey);
    // The keyboard stays with the window: Enter confirms, whatever key was clicked last.
    made->setFocusPolicy(Qt::NoFocus);
    markHovered(*made);
    m_keys.push_back(made);
    return made;
}

void Calculator::makeKeys() {
    for (int i = 0; i <= CalculatorMachine::PointKey; ++i) {
        const bool bottom = i == 0 || i == CalculatorMachine::PointKey;
        const int column = i == 0 ? 0 : i == CalculatorMachine::PointKey ? 1 : (i - 1) % 3;
        const int row = bottom ? 3 : (i - 1) / 3;
        CommandButton* made =
            key(u"Command1(%1)"_s.arg(i), i == CalculatorMachine::PointKey ? u"."_s : QString::number(i),
                240 + 720 * column, 840 + 600 * row, 600, 480);
        made->setAccessibleName(i == CalculatorMachine::PointKey ? u"小数点"_s : u"数字"_s + made->text());
        made->Click = [this, i] { Form9_Command1_Click(i); };
        Command1[static_cast<std::size_t>(i)] = made;
    }
    for (int i = 0; i < static_cast<int>(Operators.size()); ++i) {
        const Operator& entry = Operators[static_cast<std::size_t>(i)];
        CommandButton* made =
            key(u"Command2(%1)"_s.arg(i), entry.caption.toString(), entry.left, entry.top, entry.width, entry.height);
        made->setRole(Role::CalcOperator);
        made->setAccessibleName(entry.spoken.toString());
        made->Click = [this, i] { Form9_Command2_Click(i); };
        Command2[static_cast<std::size_t>(i)] = made;
    }
    Command3 = key(u"Command3"_s, u"="_s, 1680, 2640, 600, 480);
    Command4 = key(u"Command4"_s, u"清零"_s, 3000, 2640, 495, 480);
    m_fill = key(u"fill"_s, u"填入（回车）"_s, 240, 3240, 3255, 480);
    for (CommandButton* word : {Command3, Command4})
        word->setRole(Role::CalcOperator);
    m_fill->setRole(Role::Primary);
    Command3->setAccessibleName(u"等于"_s);
    Command3->Click = [this] { Form9_Command3_Click(); };
    Command4->Click = [this] { Form9_Command4_Click(); };
    m_fill->Click = [this] { enter(); };
}

void Calculator::showDisplay() {
    Text1->setBoxText(m_machine.display());
    Text1->setToolTip(showsWhole(*Text1) ? QString() : Text1->Text());
}

void Calculator::Form9_Command1_Click(int index) {
    if (std::exchange(m_handedBack, false))
        m_machine = {};
    m_machine.pressKey(index);
    showDisplay();
}

void Calculator::Form9_Command2_Click(int index) {
    m_handedBack = false;
    if (m_machine.pressOperator(index) == CalculatorMachine::Outcome::DivisionRefused)
        m_shared.tell(u"被除数不能等于零!"_s, u"温馨提示"_s);
    showDisplay();
}

void Calculator::Form9_Command3_Click() {
    m_handedBack = false;
    m_machine.pressEquals();
    showDisplay();
}

void Calculator::Form9_Command4_Click() {
    m_handedBack = false;
    m_machine.pressClear();
    showDisplay();
}

bool Calculator::typed(QChar character) {
    if (character >= u'0' && character <= u'9')
        Form9_Command1_Click(character.unicode() - u'0');
    else if (character == u'.')
        Form9_Command1_Click(CalculatorMachine::PointKey);
    else if (const auto place = QStringView(u"+-*/").indexOf(character); place >= 0)
        Form9_Command2_Click(static_cast<int>(place));
    else
        return false;
    return true;
}

void Calculator::focusInEvent(QFocusEvent* event) {
    FieldTool::focusInEvent(event);
    // Behind Qt's own word that it is at the window.
    QMetaObject::invokeMethod(
        this, [this] { accessible::tell(*Text1, QAccessible::Focus); }, Qt::QueuedConnection);
}

void Calculator::keyPressEvent(QKeyEvent* event) {
    event->accept();
    handlers::enter([&] {
        switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // The Enter that opened the calculator may still be held.
            if (!event->isAutoRepeat())
                enter();
            break;
        case Qt::Key_Escape:
            unload();
            break;
        default:
            if (!event->text().isEmpty())
                typed(event->text().front());
        }
    });
}

void Calculator::handBack() {
    if (!holdsNews() || !m_field.isOpen())
        return;
    try {
        if (const auto number = m_machine.handOver()) {
            m_field.fill(*number);
            m_handedBack = true;
        }
    } catch (const RuntimeError&) {
        // "7/0" ends the program by its "=" and by Enter, not by a click somewhere else: it has no number to give.
    }
    showDisplay();
}

/// Goes away; what was reckoned goes into the cell that asked. A glance hands nothing back. Tells whether the cell
/// holds now what it shall.
bool Calculator::finish() {
    const bool news = holdsNews();
    const auto number = news ? m_machine.handOver() : std::nullopt;
    unload();
    if (news != number.has_value() || !m_field.isOpen())
        return false;
    if (number)
        m_field.fill(*number);
    m_field.takeKeyboard();
    return true;
}

/// Enter: where the cell is still the current one of its list, the walk along the row goes on.
void Calculator::enter() {
    if (finish() && m_field.entered && m_field.isCellOf({m_field.box, m_field.grid}))
        m_field.entered();
}

} // namespace qinghe
