#include "core/web_window.h"

#include "core/web_pages.h"

namespace qinghe {

using namespace Qt::StringLiterals;

WebWindow::WebWindow(Shared& shared)
    : Form(names::Web, Kind::Dialog, Ground::Dialog), m_shared(shared), Web1(new WebBrowser(this, u"Web1"_s)) {
    setCaption(u"软件工具"_s);
    Web1->Leave = [this](const QUrl& page) { m_shared.services.launcher->explore(page); };
}

void WebWindow::load() {
    Web1->navigate(webPage(m_shared, u"softs.htm"_s));
}

void WebWindow::applyPlace() {
    Form::applyPlace();
    Web1->place(0, 0, Width(), Height());
}

} // namespace qinghe
