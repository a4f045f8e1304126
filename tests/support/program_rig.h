#pragma once

#include "app/program.h"
#include "core/main_window.h"
#include "support/doubles.h"
#include "support/names.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace qinghe::testing {

using namespace Qt::StringLiterals;

/// A whole program in a temporary folder of its own, with a real data file, real windows and real events; only the
/// desktop's services are doubles. The data file is as delivered: one user 管理员 with the password 123456, settings
/// false, small pictures; the ledgers are empty.
class ProgramRig {
public:
    /// In a folder of this name inside the temporary one, or in that itself.
    explicit ProgramRig(const QString& folderName = {});
    ~ProgramRig();

    /// Makes the program and shows the sign-in. Called by signIn; call it yourself to test what comes before.
    void start();
    /// Starts and signs in as 管理员: the main window stands.
    void signIn();
    /// Lets go of the running program, as the end of its process would, and keeps the folder.
    void stop();

    /// A control; ends the test program when there is none.
    template<class T>
    T& at(const Name<T>& name) {
        return control<T>(name.form, name);
    }
    /// The same by a name out of a table.
    template<class T>
    T& control(const FormName& form, const QString& name) {
        Form* found = loaded(form);
        T* child = found ? found->findChild<T*>(name) : nullptr;
        if (!child)
            qFatal("no control %s on %s", qPrintable(name), qPrintable(QString(form)));
        return *child;
    }
    template<class T>
    T& onMain(const QString& name) {
        return control<T>(forms::Main, name);
    }
    Form* loaded(const FormName& form) { return program->shared().forms.loaded(form); }
    MainWindow& mainWindow() { return static_cast<MainWindow&>(*loaded(forms::Main)); }

    // Events, as a user makes them.
    static void click(QWidget& widget);
    static void doubleClick(QWidget& widget);
    static void press(QWidget& widget, Qt::Key key);
    static void type(QWidget& widget, const QString& text);
    /// Moves the pointer over the widget.
    static void hover(QWidget& widget);
    /// Clicks a cell of a grid, scrolled into view first.
    static void clickCell(MSFlexGrid& grid, int row, int col);
    /// Lets waiting events and queued calls run.
    static void settle();

    /// A row of a grid, cells from column 1 on, joined with "|".
    static QString rowText(const MSFlexGrid& grid, int row);

    QString file(const QString& name) const { return QDir(folder()).filePath(name); }
    QString folder() const { return m_folder; }
    QString dataFile() const { return file(u"data.dll"_s); }

    /// Runs SQL on the data file through a connection of its own (rows as texts joined with "|"; NULL reads "NULL"),
    /// for preparing and for looking. Works while the program runs, between handlers, and on a spoilt header too.
    QStringList sql(const QString& text);
    /// Bytes 1 and 2 of the data file.
    QByteArray headerBytes() const;

    bool ended() const { return !process->codes.empty(); }
    int exitCode() const { return process->codes.empty() ? -1 : process->codes.front(); }
    ShownMessage lastMessage() const { return messages->shown.empty() ? ShownMessage{} : messages->shown.back(); }

    // The doubles; owned by the program while it runs, renewed at each start.
    FixedClock* clock = nullptr;
    AnsweringMessages* messages = nullptr;
    AnsweringChooser* chooser = nullptr;
    NotingTray* tray = nullptr;
    NotingLauncher* launcher = nullptr;
    NotingSound* sound = nullptr;
    GivenLock* lock = nullptr;
    WaitingWork* background = nullptr;
    NotedEnd* process = nullptr;

    std::unique_ptr<Program> program;

private:
    Services makeServices();

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_folder;
    Services m_spare;
};

/// Writes a data file as delivered, header spoilt, at `path`.
void writeDeliveredData(const QString& path);

} // namespace qinghe::testing
