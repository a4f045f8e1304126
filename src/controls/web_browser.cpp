#include "controls/web_browser.h"

namespace qinghe {

WebBrowser::WebBrowser(QWidget* parent, const QString& name) : QTextBrowser(parent), Placed(this) {
    setObjectName(name);
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(20);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { follow(link); });
}

void WebBrowser::navigate(const QUrl& page) {
    setSource(page);
}

void WebBrowser::follow(const QUrl& link) {
    const QUrl target = source().resolved(link);
    const QUrl folder = source().adjusted(QUrl::RemoveFilename);
    if (folder.isParentOf(target))
        setSource(target);
    else
        Leave.fromQt(target);
}

} // namespace qinghe
