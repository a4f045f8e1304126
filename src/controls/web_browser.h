#pragma once

#include "controls/event.h"
#include "controls/placed.h"

#include <QTextBrowser>
#include <QUrl>

namespace qinghe {

/// Shows local pages. A link to another page of the same folder is followed; any other leaves to `Leave`.
class WebBrowser : public QTextBrowser, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    WebBrowser(QWidget* parent, const QString& name);

    void navigate(const QUrl& page);

    Event<const QUrl&> Leave;

private:
    void follow(const QUrl& link);
};

} // namespace qinghe
