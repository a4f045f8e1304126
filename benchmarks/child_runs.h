#pragma once

#include <QString>
#include <QStringList>

namespace qinghe::benchmarks {

/// What a child process of this program does before it ends; each shows something and prints one figure.
/// Returns false when `arguments` ask for none.
bool runAsChild(int argc, char** argv, int& exitCode);

/// Starts a child and gives the ms from its start to its end, which comes with the first painting.
double startTime(const QStringList& arguments);
/// Resident memory of this process, MiB.
double residentMiB();
/// Starts a child and gives the figure that it prints.
double childFigure(const QStringList& arguments);

} // namespace qinghe::benchmarks
