#include "core/title_band.h"

#include "core/hover.h"
#include "core/ink.h"
#include "core/stored_picture.h"
#include "core/web_pages.h"
#include "core/web_window.h"
#include "platform/files.h"
#include "store/data_file.h"
#include "store/header_toggle.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {
constexpr int Minimised = 1;
}

TitleBand::TitleBand(Form& window, Shared& shared)
    : m_window(window),
      m_shared(shared),
      Picture3(new Image(&window, u"Picture3"_s)),
      Label16(new Label(Picture3, u"Label16"_s)),
      Label17(new Label(Picture3, u"Label17"_s)),
      Label20(new Label(Picture3, u"Label20"_s, WebAddressCaption.toString())),
      Label26(new Label(&window, u"Label26"_s, productName())),
      m_notes(new Label(Picture3, {})) {
    makeWords();
    makeImages();
}

void TitleBand::makeWords() {
    Picture3->place(120, 690, 11655, 330);
    Label16->place(840, 0, 2000, 330);
    Label17->place(2880, 0, 1000, 330);
    Label20->place(9255, 0, 2280, 330);
    Label26->place(960, 240, 2175, 375);
    m_notes->place(4080, 0, 5100, 330);
    Label16->setRole(Role::ClockText);
    Label17->setRole(Role::ClockText);
    m_notes->setRole(Role::ClockText);
    m_notes->setForeColor(ink::Amber);
    m_notes->setShown(false);
    m_notes->setAnnounced();
    Picture3->setAccessibleName(u"标题栏"_s);
    Label17->setAccessibleName(u"现在时间"_s);
    Label20->setAccessibleName(u"首页"_s);
    m_notes->setReachable();
    Label20->setRole(Role::Link);
    Label26->setRole(Role::ProductName);
    Label20->Click = [this] { Form2_Label20_Click(); };
    Label20->setToolTip(u"首页（本机网页）"_s);
    Label20->setReachable();
    showHandOver(Label20);
}

void TitleBand::makeImages() {
    struct WindowImage {
        QStringView name;
        double left; ///< twips
        Glyph glyph;
        QStringView tip;
        void (TitleBand::*click)();
    };
    constexpr WindowImage Images[] = {
        {u"Image7", 10095, Glyph::Info, u"软件介绍", &TitleBand::Form2_Image7_Click},
        {u"Image5", 10530, Glyph::Tools, u"软件工具", &TitleBand::Form2_Image5_Click},
        {u"Image4", 10965, Glyph::Minimise, u"最小化", &TitleBand::Form2_Image4_Click},
        {u"Image3", 11400, Glyph::Close, u"退出", &TitleBand::Form2_Image3_Click},
    };
    for (const WindowImage& entry : Images) {
        auto* image = new Image(&m_window, entry.name.toString());
        image->place(entry.left, 150, 375, 375);
        image->setRole(Role::Glyph);
        image->setGlyph(entry.glyph);
        image->setToolTip(entry.tip.toString());
        image->Click = [this, click = entry.click] { (this->*click)(); };
        image->setReachable();
        showHandOver(image);
    }
}

void TitleBand::showDateAndTime() {
    Label16->setCaption(u"系统时间："_s + dateText(m_shared.services.clock->today()));
    showTime();
}

void TitleBand::showTime() {
    Label17->setCaption(timeText(m_shared.services.clock->now().time()));
}

void TitleBand::showNotes(const QStringList& notes) {
    m_notes->setShown(!notes.isEmpty());
    if (notes.isEmpty())
        return;
    const QString last = notes.back().section(u'\n', 0, 0);
    m_notes->setCaption(notes.size() == 1 ? last : u"%1（共 %2 条）"_s.arg(last).arg(notes.size()));
    m_notes->setToolTip(notes.join(u"\n\n"_s));
}

void TitleBand::Form2_Image3_Click() {
    m_shared.unloadTools();
    m_shared.safety.breakOffAtEnd();
    for (const StoredPicture& picture : {ChosenSkin, DesktopPicture, SignInPicture})
        files::deleteMatching(m_shared.services.appPath, picture.file.toString());
    m_shared.store.close();
    spoilHeader(m_shared.dataFile());
    throw handlers::ProgramEnd{0};
}

void TitleBand::Form2_Image4_Click() {
    m_shared.finishTools();
    m_window.setWindowState(Minimised);
}

void TitleBand::Form2_Image5_Click() {
    m_shared.finishTools();
    m_shared.forms.get(names::Web).showTools();
}

void TitleBand::Form2_Image7_Click() {
    m_shared.finishTools();
    openWebPage(m_shared, u"adetail.htm"_s);
}

void TitleBand::Form2_Label20_Click() {
    openWebPage(m_shared, u"index.htm"_s);
}

} // namespace qinghe
