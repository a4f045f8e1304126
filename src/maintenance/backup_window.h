#pragma once

#include "controls/common_dialog.h"
#include "core/shared.h"

namespace qinghe {

class FileCopy;

/// `Form13`: copies the data file to a place of the user's choice, or a file of his choice over the data file. Which of
/// the two is told by the caption of its button. Any file may be restored, what it holds is seen when the ledger is
/// read next; only a ledger that a later program has written is refused, and the one in use stays.
class BackupWindow : public Form {
    Q_OBJECT

public:
    enum class Direction { Backup, Restore };

    explicit BackupWindow(Shared& shared);

    /// Shows the texts of this direction.
    void turnTo(Direction direction);
    void unloaded() override;

    Event<> Gone; ///< the window goes

private:
    void Form13_Command1_Click();
    void backUp(const QString& file);
    void restore(const QString& file);
    void copy(FileCopy& copying);

    Shared& m_shared;
    Frame* Frame1;
    Image* m_disc;  ///< the sign of the direction
    Label* Label1;  // the explanation
    Label* m_diary; ///< what becomes of the diary's texts
    ProgressBar* Pro1;
    CommandButton* Command1; // 开始备份, 开始还原
    Label* m_safety;         ///< the way back from a restore
    CommonDialog* Com1;
};

} // namespace qinghe
