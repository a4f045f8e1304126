#pragma once

#include "core/shared.h"

namespace qinghe {

/// The band at the top of the main window, which has no title bar of the desktop's: its name, the date and time, the
/// makers' address, and the window images. `Image3` is the only way out of a running main window.
class TitleBand {
public:
    TitleBand(Form& window, Shared& shared);

    /// Writes the date and the time of now.
    void showDateAndTime();
    /// Writes the time of now.
    void showTime();
    /// Says what there is to be said, quietly and to the end: the first line of the last one, the rest on demand.
    void showNotes(const QStringList& notes);

private:
    void makeWords();
    void makeImages();

    void Form2_Image3_Click();
    void Form2_Image4_Click();
    void Form2_Image5_Click();
    void Form2_Image7_Click();
    void Form2_Label20_Click();

    Form& m_window;
    Shared& m_shared;
    Image* Picture3; // the band of date, time and address
    Label* Label16;  // date of the load
    Label* Label17;  // time
    Label* Label20;  // the makers' address
    Label* Label26;  // the program's name
    Label* m_notes;  ///< between the time and the address
};

} // namespace qinghe
