#pragma once

#include "store/loaded_set.h"
#include "store/store.h"

#include <QObject>

namespace qinghe {

/// A data control: points at the file with a connection text, takes a table name or a query, and gives the recordset of
/// its last refresh. The only way to the store.
class Adodc : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString ConnectionString READ connectionString WRITE setConnectionString)
    Q_PROPERTY(QString RecordSource READ recordSource WRITE setRecordSource)
    Q_PROPERTY(bool Visible READ isVisible)

public:
    /// `home` is the connection text of the program's own file, where the control points at first.
    Adodc(Store& store, const QString& name, const QString& home, QObject* parent = nullptr);
    ~Adodc() override;

    const QString& connectionString() const { return m_connection; }
    /// "provider = microsoft.jet.oledb.4.0;data source=<path of data.dll>", with or without a blank behind it. All that
    /// stands behind "data source=" is path, blanks at its end apart.
    void setConnectionString(const QString& text) { m_connection = text; }
    const QString& recordSource() const { return m_source; }
    /// Never queries by itself: the set in hand stays that of the last refresh.
    void setRecordSource(const QString& source) { m_source = source; }

    /// Runs the source; the recordset is replaced and stands on its first row. Throws RuntimeError, with the set in
    /// hand left as it was.
    void refresh();
    /// The recordset of the last refresh. Throws RuntimeError (91) before the first one.
    Recordset& recordset();
    bool hasRecordset() const { return m_loaded != nullptr; }
    /// The set of the last refresh, for somebody who goes on with it in a later handler, whatever the control is used
    /// for in between; nothing before the first one.
    std::shared_ptr<LoadedSet> loaded() const { return m_loaded; }

    /// Points the control home again, wherever it was pointed meanwhile, and runs the source.
    Recordset& open(const QString& source);

    /// Never: nothing of it is drawn.
    /// Takes a set that was loaded before for the one in hand, as if its source had just been run: it stands on its
    /// first row, and nothing is read.
    void show(const std::shared_ptr<LoadedSet>& loaded);

    bool isVisible() const { return false; }

private:
    Store& m_store;
    QString m_home;
    QString m_connection;
    QString m_source;
    std::shared_ptr<LoadedSet> m_loaded;
};

} // namespace qinghe
