#pragma once

#include "controls/controls.h"
#include "controls/form.h"
#include "support/guard_fixture.h"
#include "support/pointer.h"

namespace qinghe::testing {

/// A form on view, whose own clicks and those of its controls are noted in `log` by name.
class WindowTest : public GuardTest {
protected:
    void SetUp() override {
        GuardTest::SetUp();
        onCommit = [] {};
        form.place(0, 0, 6000, 4500);
        form.Click = [this] { note(u"Form2"_s); };
        handlers::enter([this] { form.showForm(); });
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
        log.clear();
    }

    void note(const QString& what) { log << what; }

    /// A control at a place of its own (twips), shown, whose click is noted.
    template<class Control, class... Args>
    Control& put(QWidget& parent, const QString& name, QRectF place, Args... args) {
        auto* made = new Control(&parent, name, args...);
        made->place(place.left(), place.top(), place.width(), place.height());
        if constexpr (requires { made->Click; })
            made->Click = [this, name] { note(name); };
        made->setShown(true);
        return *made;
    }

    /// What has been noted since, the guard's own notes left out.
    QStringList noted() {
        QStringList notes = log;
        notes.removeAll(u"returned"_s);
        log.clear();
        return notes;
    }

    Form form{u"Form2"_s, Form::Kind::Frameless, Ground::Main};
};

} // namespace qinghe::testing
