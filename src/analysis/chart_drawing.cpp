#include "analysis/chart_drawing.h"

#include <QDir>
#include <QLibrary>

namespace qinghe {

using namespace Qt::StringLiterals;

std::unique_ptr<ChartDrawing> ChartDrawing::load(const QString& folder) {
    using Maker = ChartDrawing* (*)();
    // A library that was loaded stays for as long as the program runs.
    QLibrary module(QDir(folder).filePath(u"qinghe_charts"_s));
    const auto make = reinterpret_cast<Maker>(module.resolve("qingheChartDrawing"));
    return std::unique_ptr<ChartDrawing>(make ? make() : nullptr);
}

} // namespace qinghe
