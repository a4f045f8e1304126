#include "core/web_window.h"

#include "core/web_pages.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView Tools = u"软件工具";

} // namespace

WebWindow::WebWindow(Shared& shared)
    : Form(names::Web, Kind::Dialog, Ground::Dialog), m_shared(shared), Web1(new WebBrowser(this, u"Web1"_s)) {
    setCaption(Tools.toString());
    Web1->setAccessibleName(u"网页"_s);
    Web1->Leave = [this](const QUrl& page) { openAddress(m_shared, page); };
}

void WebWindow::load() {
    Web1->navigate(webPage(m_shared, u"softs.htm"_s));
}

void WebWindow::showTools() {
    if (Caption() != Tools) { // it stood in for a browser meanwhile
        setCaption(Tools.toString());
        load();
    }
    showBesideMain();
}

void WebWindow::showInstead(const QUrl& page) {
    Web1->navigate(page);
    setCaption(Web1->documentTitle());
    showBesideMain();
}

void WebWindow::showBesideMain() {
    if (const Form* window = m_shared.forms.loaded(names::Main))
        place(window->Left() + window->Width(), window->Top(), window->Width(), window->Height());
    showForm();
    Web1->setFocus(); // its keys scroll the page, and Tab goes along its links
}

void WebWindow::applyPlace() {
    Form::applyPlace();
    Web1->place(0, 0, Width(), Height());
}

} // namespace qinghe
