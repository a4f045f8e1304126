#pragma once

#include "controls/accessible.h"

#include <QStringList>

#include <utility>
#include <vector>

namespace qinghe::testing {

/// Stands in for a screen reader, and notes what the controls themselves tell it: of a cell its place, of all else the
/// name.
class Listener {
public:
    Listener() {
        heardSoFar().clear();
        accessible::setEar(hear);
    }
    ~Listener() { accessible::setEar(nullptr); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    void forget() { heardSoFar().clear(); }
    bool heard(QAccessible::Event what, const QString& of) const { return all(what).contains(of); }
    QStringList all(QAccessible::Event what) const {
        QStringList names;
        for (const auto& [event, name] : heardSoFar())
            if (event == what)
                names << name;
        return names;
    }
    QStringList all() const {
        QStringList names;
        for (const auto& [event, name] : heardSoFar())
            names << QString::number(event, 16) + u' ' + name;
        return names;
    }

private:
    static std::vector<std::pair<QAccessible::Event, QString>>& heardSoFar() {
        static std::vector<std::pair<QAccessible::Event, QString>> events;
        return events;
    }
    static void hear(QAccessibleEvent& event) {
        if (QAccessibleInterface* const told = event.accessibleInterface())
            heardSoFar().emplace_back(
                event.type(),
                told->text(told->role() == QAccessible::Cell ? QAccessible::Description : QAccessible::Name));
    }
};

} // namespace qinghe::testing
