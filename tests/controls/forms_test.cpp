#include "controls/controls.h"
#include "controls/forms.h"
#include "support/guard_fixture.h"

#include <QPointer>
#include <QTest>

namespace qinghe::testing {
namespace {

class FormsTest : public GuardTest {
protected:
    struct NotingForm : Form {
        NotingForm(const QString& name, QStringList& notes, QWidget* owner = nullptr)
            : Form(name, Kind::Dialog, Ground::Dialog, owner), log(notes) {
            place(300, 300, 3000, 2250);
        }
        void load() override { log << u"load "_s + objectName(); }
        void unloaded() override { log << u"unload "_s + objectName(); }
        QStringList& log;
    };

    FormsTest() {
        onCommit = [] {};
        forms.define(FormName<>{u"Form3"}, [this] { return new NotingForm(u"Form3"_s, log); });
        forms.define(FormName<>{u"Form9"},
                     [this] { return new NotingForm(u"Form9"_s, log, forms.loaded(u"Form3"_s)); });
    }

    Forms forms;
};

TEST_F(FormsTest, AFormIsMadeAndLoadedByItsFirstUseAlone) {
    EXPECT_EQ(forms.loaded(u"Form3"_s), nullptr);
    Form& form = forms.get(FormName<>{u"Form3"});
    EXPECT_EQ(&forms.get(FormName<>{u"Form3"}), &form);
    EXPECT_EQ(forms.loaded(u"Form3"_s), &form);
    EXPECT_EQ(log, QStringList{u"load Form3"_s});
    EXPECT_EQ(form.objectName(), u"Form3"_s);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FormsTest, UnloadingAFormThatIsNotLoadedOrNotKnownIsHarmless) {
    forms.unload(u"Form3"_s);
    forms.unload(u"Form99"_s);
    EXPECT_EQ(log, QStringList{});
    EXPECT_FALSE(forms.anyLoaded());
}

TEST_F(FormsTest, AnUnloadedFormForgetsEverything) {
    forms.get(FormName<>{u"Form3"}).setCaption(u"记得"_s);
    forms.unload(u"Form3"_s);
    forms.unload(u"Form3"_s);
    EXPECT_EQ(log, (QStringList{u"load Form3"_s, u"unload Form3"_s}));
    EXPECT_EQ(forms.get(FormName<>{u"Form3"}).Caption(), QString());
}

TEST_F(FormsTest, TheWindowGoesAtOnceAndTheObjectWhenTheHandlersHaveReturned) {
    const QPointer<Form> form = &forms.get(FormName<>{u"Form3"});
    form->showForm();
    handlers::enter([&] {
        forms.unload(u"Form3"_s);
        ASSERT_TRUE(form);
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(forms.loaded(u"Form3"_s), nullptr);
    });
    turnLoop();
    EXPECT_FALSE(form);
}

TEST_F(FormsTest, AFormCanBeUnloadedInsideItsOwnHandler) {
    Form& form = forms.get(FormName<>{u"Form3"});
    auto* label = new Label(&form, u"Label1"_s);
    label->place(0, 0, 1500, 1500);
    label->Click = [this, label] {
        forms.unload(u"Form3"_s);
        label->setCaption(u"走了"_s);
        log << label->Caption();
    };
    form.showForm();
    QTest::mouseClick(label, Qt::LeftButton);
    turnLoop();
    EXPECT_EQ(log.mid(1), (QStringList{u"unload Form3"_s, u"走了"_s, u"returned"_s}));
}

TEST_F(FormsTest, AnUnloadHandlerThatUnloadsItsOwnFormAgainRunsOnce) {
    struct Stubborn : Form {
        explicit Stubborn(Forms& all) : Form(u"Form4"_s, Kind::Dialog, Ground::Dialog), forms(all) {}
        void unloaded() override {
            ++times;
            forms.unload(u"Form4"_s);
        }
        Forms& forms;
        int times = 0;
    };
    forms.define(FormName<Stubborn>{u"Form4"}, [this] { return new Stubborn(forms); });
    auto& form = forms.get(FormName<Stubborn>{u"Form4"});
    forms.unload(u"Form4"_s);
    EXPECT_EQ(form.times, 1);
}

TEST_F(FormsTest, TheDesktopsCloseButtonUnloads) {
    Form& form = forms.get(FormName<>{u"Form3"});
    form.showForm();
    form.close();
    EXPECT_EQ(forms.loaded(u"Form3"_s), nullptr);
    EXPECT_TRUE(log.contains(u"unload Form3"_s));
}

TEST_F(FormsTest, AFormMayAnswerTheCloseButtonItself) {
    Form& form = forms.get(FormName<>{u"Form3"});
    form.CloseAsked = [this] { log << u"asked"_s; };
    form.showForm();
    form.close();
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(forms.loaded(u"Form3"_s), &form);
    EXPECT_TRUE(log.contains(u"asked"_s));
}

TEST_F(FormsTest, KnowsWhetherAnyFormIsLoaded) {
    EXPECT_FALSE(forms.anyLoaded());
    forms.get(FormName<>{u"Form3"});
    EXPECT_TRUE(forms.anyLoaded());
    forms.get(FormName<>{u"Form9"});
    forms.unload(u"Form3"_s);
    EXPECT_TRUE(forms.anyLoaded());
    forms.unload(u"Form9"_s);
    EXPECT_FALSE(forms.anyLoaded());
}

TEST_F(FormsTest, ClearTakesAllAwayWithoutTheirUnloadHandlers) {
    const QPointer<Form> owner = &forms.get(FormName<>{u"Form3"}), owned = &forms.get(FormName<>{u"Form9"});
    log.clear();
    forms.clear();
    EXPECT_FALSE(owner);
    EXPECT_FALSE(owned);
    EXPECT_FALSE(forms.anyLoaded());
    EXPECT_EQ(log, QStringList{});
}

TEST_F(FormsTest, AFormWhoseOwnerWasUnloadedIsStillUnloadedSafely) {
    forms.get(FormName<>{u"Form3"});
    forms.get(FormName<>{u"Form9"});
    forms.unload(u"Form3"_s);
    turnLoop();
    forms.unload(u"Form9"_s);
    EXPECT_FALSE(forms.anyLoaded());
}

TEST_F(FormsTest, AnErrorInALoadLeavesTheFormForTheEndOfTheProgram) {
    struct Failing : Form {
        Failing() : Form(u"Form4"_s, Kind::Dialog, Ground::Dialog) {}
        void load() override { throw RuntimeError(RuntimeError::FileNotFound, u"找不到文件"_s); }
    };
    forms.define(FormName<>{u"Form4"}, [] { return new Failing; });
    handlers::enter([this] { forms.get(FormName<>{u"Form4"}).showForm(); });
    EXPECT_EQ(log, (QStringList{u"report 53"_s, u"end 1"_s}));
}

} // namespace
} // namespace qinghe::testing
