#pragma once

#include "controls/event.h"
#include "controls/placed.h"

#include <QTextBrowser>
#include <QUrl>

namespace qinghe {

/// Shows local pages, and of what they name only plain files of the first page's folder. A link to another page there
/// is followed; any other leaves to `Leave`.
class WebBrowser : public QTextBrowser, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    WebBrowser(QWidget* parent, const QString& name);

    void navigate(const QUrl& page);

    Event<const QUrl&> Leave;

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    void follow(const QUrl& link);
    bool isOfFolder(const QUrl& target) const;

    QString m_folder;
};

} // namespace qinghe
