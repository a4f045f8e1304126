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
    FormName form;
    std::vector<QString> buttons;
    std::vector<QString> frames = {};
};

void PrintTo(const Hovered& hovered, std::ostream* out) {
    *out << std::string(hovered.form);
}

class WindowHover : public ::testing::TestWithParam<Hovered> {
protected:
    WindowHover() {
        rig.signIn();
        handlers::enter(
            [this] { rig.program->shared().forms.get(qinghe::FormName<>{GetParam().form.name}).showForm(); });
        rig.settle();
    }
    Form& window() { return *rig.loaded(GetParam().form); }
    std::vector<CommandButton*> buttons() {
        std::vector<CommandButton*> found;
        for (const QString& button : GetParam().buttons)
            found.push_back(&rig.control<CommandButton>(GetParam().form, button));
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
    for (const QString& frame : GetParam().frames) {
        hoverButtons();
        pointer::move(rig.control<Frame>(GetParam().form, frame), {3, 12});
        expectAll(White);
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, WindowHover,
                         ::testing::Values(Hovered{forms::Purge, {purge::Start}, {purge::Records, purge::Explained}},
                                           Hovered{forms::SkinPictures, {pictures::Browse, pictures::Store}},
                                           Hovered{forms::DesktopPictures, {pictures::Browse, pictures::Store}},
                                           Hovered{forms::SignInPictures, {pictures::Browse, pictures::Store}},
                                           Hovered{forms::Backup, {backup::Start}, {backup::Ground}}),
                         [](const auto& window) { return std::string(window.param.form); });

} // namespace
} // namespace qinghe::testing
