#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace qinghe::testing {

using namespace Qt::StringLiterals;

/// A machine of the test's own for the project's scripts: it knows the commands that are named, and no others.
class ScriptTest : public ::testing::Test {
protected:
    explicit ScriptTest(const QStringList& known) {
        for (const QString& name : known)
            QFile::link(QStandardPaths::findExecutable(name), commands.filePath(name));
        environment.insert(u"PATH"_s, commands.path());
    }

    /// Makes a command of these lines of the shell.
    void add(const QString& name, const QByteArray& script) const { makeScript(commands.filePath(name), script); }
    static void makeScript(const QString& path, const QByteArray& script) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script + '\n');
        file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeUser);
    }
    /// A script of the project.
    static QString script(const QString& name) { return QStringLiteral(QINGHE_PROJECT) + u'/' + name; }

    /// The exit code; the words go to `said`.
    int run(const QString& path, const QStringList& arguments = {}) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.setWorkingDirectory(folder.path());
        process.start(commands.filePath(u"bash"_s), QStringList{path} + arguments);
        process.waitForFinished();
        said = QString::fromUtf8(process.readAll());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    /// What a command wrote into a file of its own name and ".calls".
    QString calls(const QString& name) const {
        QFile file(commands.filePath(name + u".calls"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    QTemporaryDir commands;
    QTemporaryDir folder; ///< where scripts are started
    QProcessEnvironment environment;
    QString said;
};

} // namespace qinghe::testing
