#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;

/// How long a call takes, in ms.
double milliseconds(const std::function<void()>& call);

double median(std::vector<double> values);

struct Pair {
    double ours = 0;
    double reference = 0;
};

/// Takes both figures `runs` times in turn, so that a change of the machine's speed meets both, and gives the medians.
Pair inTurn(int runs, const std::function<double()>& ours, const std::function<double()>& reference);

/// Prints one line a measure, and at last how many there were and how many are over their bound.
class Report {
public:
    void add(const QString& name, const Pair& figures, double bound, const QString& unit = u"ms"_s);
    /// A figure that stands by itself against its bound.
    void addPlain(const QString& name, double figure, double bound);
    void note(const QString& line);
    /// The closing line; gives the process's exit code: 0 when all are within their bounds.
    int close() const;

private:
    int m_measures = 0;
    int m_over = 0;
};

/// The exponent b of the curve a * n^b that fits best.
double growthExponent(const std::vector<double>& sizes, const std::vector<double>& times);

} // namespace qinghe::benchmarks
