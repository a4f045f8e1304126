#pragma once

#include "qt_printing.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace qinghe::testing {

/// A whole program, and what the tests of all pages do with it and ask of it.
class ProgramTest : public ::testing::Test {
protected:
    Shared& shared() { return rig.program->shared(); }
    Adodc& adodc1() { return *rig.mainWindow().Adodc1; }
    Adodc& adodc2() { return *rig.mainWindow().Adodc2; }

    /// Clicks a control and lets what follows happen.
    void press(QWidget& control);
    /// Types into a box over what stands there; nothing empties it.
    void typeOver(TextBox& box, const QString& text);

    /// Of a file in the program's folder; "(missing)" when there is none.
    QByteArray bytes(const QString& name) const;
    void write(const QString& name, const QByteArray& content) const;

    /// The texts of all message boxes so far.
    QStringList texts() const;
    /// The program has told this run-time error, once, in Chinese and with the words given, and has ended with 1.
    void expectError(int number, const QString& words = {}) const;

    /// The text of the one file that the last run-time error left beside the book; "" when there is none.
    QString rescuedText() const;

    /// The rows of a grid, cells joined with "|".
    static QStringList rowsOf(const MSFlexGrid& grid);
    /// The current cell: "2,3".
    static QString currentOf(const MSFlexGrid& grid);
    /// A box lies exactly over a cell, in twips and in pixels.
    static void expectOver(const TextBox& box, MSFlexGrid& grid, int row, int col);

    ProgramRig rig;
};

} // namespace qinghe::testing
