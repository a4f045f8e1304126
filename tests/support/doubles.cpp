#include "support/doubles.h"

namespace qinghe::testing {

Answer AnsweringMessages::show(const QString& text, MessageStyle style, const QString& title) {
    shown.push_back({text, static_cast<int>(style), title});
    if (whileShown)
        whileShown(shown.back());
    if (answers.empty())
        return style == MessageStyle::YesNoQuestion ? Answer::Yes : Answer::Ok;
    const Answer answer = answers.front();
    answers.erase(answers.begin());
    return answer;
}

} // namespace qinghe::testing
