#include "maintenance/picture_window.h"
#include "qt_printing.h"
#include "support/pointer.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

// The pointer on the windows that the settings page opens: over a button the hand and light grey, white again
// elsewhere.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 Grey = 0xE0E0E0, White = 0xFFFFFF;

struct Hovered {
    const char* form;
    std::vector<const char*> buttons;
    std::vector<const char*> frames = {};
};

void PrintTo(const Hovered& hovered, std::ostream* out) {
    *out << hovered.form;
}

class WindowHover : public ::testing::TestWithParam<Hovered> {
protected:
    WindowHover() {
        rig.signIn();
        handlers::enter([this] {
            const QString form = name();
            rig.program->shared().forms.get(FormName<>{form}).showForm();
        });
        rig.settle();
    }
    QString name() const { return QString::fromLatin1(GetParam().form); }
    Form& window() { return *rig.loaded(name()); }
    std::vector<CommandButton*> buttons() {
        std::vector<CommandButton*> found;
        for (const char* button : GetParam().buttons)
            found.push_back(&rig.control<CommandButton>(name(), QString::fromLatin1(button)));
        return found;
    }
    void expectAll(quint32 colour) {
        for (const CommandButton* button : buttons())
            EXPECT_EQ(button->BackColor(), colour) << qPrintable(button->objectName());
    }
    /// What is painted of a button below its caption.
    static QColor painted(CommandButton& button) {
        return button.grab().toImage().pixelColor(button.width() / 2, button.height() - 6);
    }
    void hoverButtons() {
        for (CommandButton* button : buttons())
            pointer::move(*button);
        expectAll(Grey);
    }

    ProgramRig rig;
};

TEST_P(WindowHover, AButtonUnderThePointerIsGreyAndShowsTheHand) {
    expectAll(White);
    for (CommandButton* button : buttons()) {
        EXPECT_EQ(painted(*button), QColor(Qt::white));
        pointer::move(*button);
        EXPECT_EQ(button->BackColor(), Grey);
        EXPECT_EQ(painted(*button), QColor(0xE0, 0xE0, 0xE0));
        EXPECT_EQ(button->cursor().shape(), Qt::PointingHandCursor);
    }
}

TEST_P(WindowHover, OnTheBareFormItIsWhiteAgain) {
    hoverButtons();
    pointer::move(window(), {3, 3});
    expectAll(White);
}

TEST_P(WindowHover, OnABareFrameItIsWhiteAgain) {
    for (const char* frame : GetParam().frames) {
        hoverButtons();
        pointer::move(rig.control<Frame>(name(), QString::fromLatin1(frame)), {3, 12});
        expectAll(White);
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, WindowHover,
                         ::testing::Values(Hovered{"Form3", {"Command1"}, {"Frame1", "Frame2"}},
                                           Hovered{"Form8", {"Command1", "Command2"}},
                                           Hovered{"Form10", {"Command1", "Command2"}},
                                           Hovered{"Form11", {"Command1", "Command2"}},
                                           Hovered{"Form13", {"Command1"}, {"Frame1"}}),
                         [](const auto& window) { return std::string(window.param.form); });

} // namespace
} // namespace qinghe::testing
