#pragma once

#include "controls/controls.h"
#include "core/main_window.h"

namespace qinghe {

/// The bar that Ctrl+F brings up at the foot of a list. It looks for words in all columns, goes to the next place or to
/// the one before, round the list's ends, and counts the places. The current cell moves and nothing else does: no text
/// changes, and as long as a box on the list holds one that was not entered, the cell stays.
///
/// One bar serves all lists that their pages name (Page::searchedLists). While it is up the list is so much shorter. It
/// goes with Esc, with its button, and with its page.
class FindBar : public Frame {
    Q_OBJECT

public:
    explicit FindBar(MainWindow& window);

    /// Comes up under a list of the page in view: the one that has the keyboard, else the one it is at, else the first.
    /// Nothing happens on a page without lists.
    void open();
    void close();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent*) override;
    void hideEvent(QHideEvent*) override;

private:
    enum class Way { Here, Next, Previous };

    std::vector<EditorTarget> offered() const;
    void serve(const EditorTarget& list);
    void layOut();
    void follow();
    bool isTypingOpen() const;
    void find(Way way);
    void moveTo(int row, int col);
    /// What the cell found holds is told to a screen reader alone: the eye sees it.
    void note(const QString& words, const QString& tip = {}, const QString& cell = {});

    MainWindow& m_window;
    Shared& m_shared;
    TextBox* m_words;
    CommandButton* m_previous;
    CommandButton* m_next;
    Label* m_note; ///< which place of how many
    CommandButton* m_close;

    bool m_isNarrow = false; ///< no room for the captions of the buttons
    EditorTarget m_list;     ///< that it is at; none while it is closed
    QMetaObject::Connection m_following;
};

} // namespace qinghe
