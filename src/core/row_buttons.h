#pragma once

#include "controls/controls.h"
#include "controls/ms_flex_grid.h"
#include "core/shared.h"

#include <array>

namespace qinghe {

/// The three buttons of a list. They stand in a row that ends at `right` (twips inside their frame).
struct RowButtonTraits {
    QStringView add, remove, save; ///< their names
    double right = 11535, top = 345;
    QStringView addCaption = u"增加", saveCaption = u"保存";
    double saveWidth = 1080;
    QStringView what = {}; ///< they are about, for a screen reader, where the page has such buttons twice
};

/// After adding and deleting the grid has the keyboard. The one that saves bears a mark while the grid differs from its
/// table.
class RowButtons {
public:
    RowButtons(QWidget* frame, const RowButtonTraits& traits, MSFlexGrid& grid);

    CommandButton* const add;
    CommandButton* const remove;
    CommandButton* const save;

    std::array<CommandButton*, 3> all() const { return {add, remove, save}; }
    void setUsable(bool usable);
};

/// What a cell says whose text its table will refuse for this reason; nothing without one.
QString stopsTheSave(const QString& reason);
/// Asks before a row is deleted, and tells whether it shall be.
bool isDeletionWanted(const Shared& shared);
/// Says that no row is added while there is a blank one.
void tellOfBlankRow(const Shared& shared);
/// Says that a list has been saved: the end of Shared::saving.
void tellSaved(Shared& shared);

} // namespace qinghe
