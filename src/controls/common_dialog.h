#pragma once

#include "platform/services.h"

#include <QObject>

namespace qinghe {

/// A form's file dialog. A name that was chosen stays until another one is: Cancel leaves what the user has settled
/// before, and the dialog opens at it the next time.
class CommonDialog : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString FileName READ FileName)
    Q_PROPERTY(QString Filter READ Filter WRITE setFilter)

public:
    CommonDialog(FileChooser& chooser, const QString& name, QObject* parent);

    QString Filter() const { return m_filter; }
    /// Pairs of words and patterns joined by "|": "*.dat|*.dat".
    void setFilter(const QString& filter) { m_filter = filter; }

    /// The name that stands in the dialog as long as none was chosen; it is no choice by itself.
    void setSuggestion(const QString& name) { m_suggestion = name; }

    /// Ends the unit of work, shows the dialog and waits. Throws RuntimeError.
    void showOpen();
    QString FileName() const { return m_fileName; } ///< "" as long as none was chosen

private:
    FileChooser& m_chooser;
    QString m_filter;
    QString m_suggestion;
    QString m_fileName;
};

} // namespace qinghe
