#pragma once

#include "controls/label.h"

#include <QPointer>

#include <vector>

namespace qinghe {

/// Labels side by side that are one stop of Tab, as the tabs of a bar are: Tab comes to the chosen one, or to the one
/// that had the keyboard last; Left and Right, Home and End go on to the others without clicking them.
class LabelRow : public QObject {
    Q_OBJECT

public:
    /// From left to right.
    void setLabels(const std::vector<Label*>& labels);
    /// Tab will come to this one; where another one has the keyboard, this one takes it.
    void choose(Label& label);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeStop(const Label& label);
    Label* after(const Label& label, int key) const;

    std::vector<Label*> m_labels;
};

} // namespace qinghe
