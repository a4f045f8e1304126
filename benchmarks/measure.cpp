#include "measure.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace qinghe::benchmarks {

double milliseconds(const std::function<void()>& call) {
    QElapsedTimer timer;
    timer.start();
    call();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Pair inTurn(int runs, const std::function<double()>& ours, const std::function<double()>& reference) {
    ours();
    reference();
    std::vector<double> a, b;
    for (int i = 0; i < runs; ++i) {
        a.push_back(ours());
        b.push_back(reference());
    }
    return {median(a), median(b)};
}

void Report::add(const QString& name, const Pair& figures, double bound, const QString& unit) {
    const double ratio = figures.ours / figures.reference;
    const bool over = ratio > bound;
    ++m_measures;
    m_over += over ? 1 : 0;
    std::printf("%s | this program %.2f %s | reference %.2f %s | ratio %.2f | bound %.2f | %s\n", qUtf8Printable(name),
                figures.ours, qUtf8Printable(unit), figures.reference, qUtf8Printable(unit), ratio, bound,
                over ? "OVER" : "ok");
    std::fflush(stdout);
}

void Report::addPlain(const QString& name, double figure, double bound) {
    const bool over = figure > bound;
    ++m_measures;
    m_over += over ? 1 : 0;
    std::printf("%s | this program %.2f | bound %.2f | %s\n", qUtf8Printable(name), figure, bound,
                over ? "OVER" : "ok");
    std::fflush(stdout);
}

void Report::note(const QString& line) {
    std::printf("  %s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

int Report::close() const {
    std::printf("%d measures, %d over their bound\n", m_measures, m_over);
    return m_over == 0 ? 0 : 1;
}

double growthExponent(const std::vector<double>& sizes, const std::vector<double>& times) {
    double sx = 0, sy = 0, sxx = 0, sxy = 0;
    const double n = static_cast<double>(sizes.size());
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const double x = std::log(sizes[i]), y = std::log(times[i]);
        sx += x, sy += y, sxx += x * x, sxy += x * y;
    }
    return (n * sxy - sx * sy) / (n * sxx - sx * sx);
}

} // namespace qinghe::benchmarks
