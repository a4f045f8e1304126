#pragma once

#include "controls/forms.h"
#include "core/field_tool.h"
#include "platform/services.h"
#include "runtime/integers.h"
#include "store/adodc.h"
#include "store/store.h"

#include <functional>
#include <map>

namespace qinghe {

/// A floating editor and the grid that it lies on.
struct EditorTarget {
    TextBox* box = nullptr;
    MSFlexGrid* grid = nullptr;
};

/// What pages and windows share, all of it: the desktop's services, the store, the forms by name, and the few facts
/// that cross from one to another. It decides nothing.
class Shared {
public:
    explicit Shared(Services desktop) : services(std::move(desktop)) {}

    Services services;
    Store store{[this] { return services.clock->today().year(); }};
    Forms forms;

    /// Which field asked last for the date picker (1 to 8) and which for the calculator (1 to 4); 0 before the first.
    Int16 dateTarget;
    Int16 calcTarget;

    /// The floating editors by the names of their grids ("ms2"), entered by the pages. A click on one page's frame
    /// closes another page's editor, and one page borrows the row number of another's grid.
    std::map<QString, EditorTarget> editors;

    /// The categories' sticky mark of a filled row. It is one variable with the place where a drag of the main window
    /// began (dragStartY): a press on the bare form disturbs the mark, and is meant to.
    Int16 emptyRowFlag;

    /// Brings up the page of the categories, which has no label of its own; entered by that page.
    std::function<void()> openCategories;

    /// Empties what stands on the diary page, if that is on view; entered by that page.
    std::function<void()> emptyDiaryPage;

    /// The connection text of the data file, with the blank at its end that most handlers leave there, or without.
    QString connection(bool blankBehind = true) const;
    /// The path of a file beside the program.
    QString beside(const QString& name) const;

    /// Unloads the date picker, the purge window and the calculator, in this order.
    void unloadTools();
    /// Unloads the date picker and the calculator.
    void unloadPickers();
    /// Shows the date picker or the calculator for a field, at a place on the screen (twips), without blocking.
    void openDatePicker(const FieldTarget& field, double left, double top);
    void openCalculator(const FieldTarget& field, double left, double top);

private:
    void openTool(const QString& form, const FieldTarget& field, double left, double top);
};

} // namespace qinghe
