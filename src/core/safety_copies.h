#pragma once

#include <QString>

#include <memory>

namespace qinghe {

class Label;
class Shared;

/// What a copy of the book is kept against, beside the one of every day.
enum class Occasion { Initialise, Purge, Restore };

/// The ways back from what cannot be undone: copies of the book in a folder of their own beside it, in the form of a
/// backup; which of them stay is told in outdatedCopies. They never stand in the way: where none can be made, the work
/// goes on, and the main window says so once. Nothing here throws.
class SafetyCopies {
public:
    explicit SafetyCopies(Shared& shared);
    ~SafetyCopies();

    /// Once the main window stands: makes the day's copy beside the handlers, unless there is one. The file is then as
    /// the last end left it, but for the remembered name and password. A copy that does not get done while the program
    /// runs is made after the next sign-in.
    void copyToday();
    /// Breaks that copying off: the program ends, or the bytes of the book are about to change.
    void breakOff();
    /// The same, waiting no longer than a user would notice.
    void breakOffAtEnd();

    /// Copies the book before something happens that cannot be undone; the unit of work has ended. `label` says from
    /// then on where the copy lies and how it is restored, or that there is none. `spared`, which may be a copy itself,
    /// stays.
    void keepBefore(Occasion occasion, Label& label, const QString& spared = {});
    /// What the label says until then.
    static void promise(Label& label, Occasion occasion);

    /// A run-time error stops a handler, whose unit of work is still open: when a save is at work, keeps the book as it
    /// stood before.
    void keepFailedSave();
    /// What became of that copy and how it is restored, in Chinese; nothing when no save was at work.
    const QString& aboutFailedSave() const { return m_aboutFailedSave; }

private:
    struct Outcome;

    void tellOnce(const QString& why);
    void tellOutcome(const Outcome& outcome);

    Shared& m_shared;
    QString m_aboutFailedSave;
    bool m_toldNone = false;
};

} // namespace qinghe
