#include "controls/web_browser.h"

#include "controls/smooth_pictures.h"
#include "platform/files.h"

#include <QFileInfo>

namespace qinghe {

WebBrowser::WebBrowser(QWidget* parent, const QString& name) : QTextBrowser(parent), Placed(this) {
    setObjectName(name);
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(20);
    SmoothPictures::serve(*document());
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { follow(link); });
}

void WebBrowser::navigate(const QUrl& page) {
    m_folder = QFileInfo(page.toLocalFile()).path();
    setSource(page);
}

bool WebBrowser::isOfFolder(const QUrl& target) const {
    return target.isLocalFile() && files::isPlainFileIn(m_folder, target.toLocalFile());
}

QVariant WebBrowser::loadResource(int type, const QUrl& name) {
    const QUrl target = source().resolved(name);
    return isOfFolder(target) ? QTextBrowser::loadResource(type, target) : QVariant();
}

void WebBrowser::follow(const QUrl& link) {
    const QUrl target = source().resolved(link);
    if (isOfFolder(target))
        setSource(target);
    else
        Leave.fromQt(target);
}

} // namespace qinghe
