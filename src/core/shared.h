#pragma once

#include "core/field_tool.h"
#include "core/names.h"
#include "core/safety_copies.h"
#include "platform/services.h"
#include "runtime/integers.h"
#include "store/adodc.h"
#include "store/store.h"

#include <functional>
#include <map>
#include <optional>

namespace qinghe {

/// A floating editor and the grid that it lies on.
struct EditorTarget {
    TextBox* box = nullptr;
    MSFlexGrid* grid = nullptr;
};

/// A save that empties a table and writes it back, while it is at work.
struct SaveAtWork {
    int had;         ///< records before
    int written = 0; ///< records written back
};

/// What pages and windows share, all of it: the desktop's services, the store, the forms, and the few facts that cross
/// from one to another. It decides nothing.
class Shared {
public:
    explicit Shared(Services desktop) : services(std::move(desktop)) {}

    Services services;
    Store store{[this] { return services.clock->today().year(); }};
    Forms forms;

    /// Which field asked last for the date picker (a DateField) and which for the calculator (an AmountField); 0 before
    /// the first.
    Int16 dateTarget;
    Int16 calcTarget;

    /// The floating editors by the names of their grids, entered by the pages. A click on one page's frame closes
    /// another page's editor, and one page borrows the row number of another's grid.
    std::map<QStringView, EditorTarget> editors;
    /// The current row of the loan grid, the one row number that all lists share: there go the empty texts that several
    /// of them read.
    int loanRow() const { return editors.at(names::LoanGrid).grid->Row(); }

    /// The categories' sticky mark of a filled row. It is one variable with the place where a drag of the main window
    /// began (dragStartY): a press on the bare form disturbs the mark.
    Int16 emptyRowFlag;

    /// From the moment at which a save begins to empty its table until it says that it is done; a run-time error in
    /// between leaves it here, to be told.
    std::optional<SaveAtWork> saving;

    /// Copies of the book against accidents.
    SafetyCopies safety{*this};

    /// What the main window has to say once it stands: one line each.
    QStringList notes;
    /// Has the main window say something more, in its first line; the lines behind it are told on demand.
    void note(const QString& text);
    /// Something has been noted; entered by the main window.
    std::function<void()> noted;

    /// Brings up the page of the categories, which has no label of its own; entered by that page.
    std::function<void()> openCategories;
    /// Empties what stands on the diary page, if that is on view; entered by that page.
    std::function<void()> emptyDiaryPage;
    /// What follows when the date picker goes; entered by the purge window while it is loaded.
    std::function<void()> pickerGone;

    /// A data control on the program's own file.
    Adodc* newControl(const QString& name, QObject* parent);
    /// The text that points a data control at the program's own file.
    QString connection() const;
    /// The path of the data file.
    QString dataFile() const;
    /// The path of the folder in which the diary's texts lie, as it is told.
    QString diaryFolder() const;
    /// The same, to write, read or delete there: refused while a link of that name would lead elsewhere. Throws
    /// RuntimeError (PathFileAccess).
    QString safeDiaryFolder() const;
    /// The path of a file beside the program.
    QString beside(const QString& name) const;

    /// Unloads the date picker, the purge window and the calculator, in this order.
    void unloadTools();
    /// Unloads the date picker and the calculator.
    void unloadPickers();
    /// What has been reckoned in the calculator goes into its cell, when it is open; comes first in whatever takes the
    /// user away from that cell. A click on the cell itself, `next`, does not.
    void handBack(const FieldTarget& next = {});
    /// Hands back, then unloads the same two.
    void finishPickers();
    /// Hands back, then unloads the same three.
    void finishTools();
    /// Unloads the date picker.
    void unloadDatePicker() { forms.unload(names::DatePicker); }
    /// Takes the date picker out of sight, if it is loaded.
    void hideDatePicker();

    /// Shows the tool for a field at a place on the screen (twips), without blocking.
    void openDatePicker(DateField field, const FieldTarget& target, QPointF place);
    void openCalculator(AmountField field, const FieldTarget& target, QPointF place);
    /// What a message says in the usual way: information with one button.
    void tell(const QString& text, const QString& title) const {
        services.say(text, MessageStyle::OkInformation, title);
    }

private:
    void openTool(const FormName<FieldTool>& name, const FieldTarget& target, QPointF place);
};

} // namespace qinghe
