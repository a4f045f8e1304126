#pragma once

#include "core/shared.h"

namespace qinghe {

/// The keys by which a date box reaches the picker, which never takes the keyboard itself: Down or F4 hands the keys on
/// to it, and opens it first, as a click in the box does, where it is not open. From then on it answers to the keys
/// that are its own, until one of the others is pressed in the box or the keyboard leaves it.
class PickerKeys : public QObject {
    Q_OBJECT

public:
    /// `isDate`: whether the box holds a date at present; always, where nothing is said. Goes with the box.
    PickerKeys(Shared& shared, TextBox& box, std::function<bool()> isDate = {});

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FieldTool* picker() const;
    void handOver();

    Shared& m_shared;
    TextBox& m_box;
    std::function<bool()> m_isDate;
};

} // namespace qinghe
