#include "support/doubles.h"

#include <QFileInfo>

namespace qinghe::testing {

using namespace Qt::StringLiterals;

namespace {

class NotingPiece : public Sound {
public:
    explicit NotingPiece(NotingSound& device) : m_device(device) {}
    ~NotingPiece() override { m_device.calls << u"close"_s; }
    void play() override { m_device.calls << u"play"_s; }
    void stop() override { m_device.calls << u"stop"_s; }
    void rewind() override {
        m_device.calls << u"rewind"_s;
        m_device.position = 0;
    }
    int position() const override { return m_device.position; }
    int length() const override { return m_device.length; }

private:
    NotingSound& m_device;
};

} // namespace

std::unique_ptr<Sound> NotingSound::open(const QString& wav) {
    calls << u"open "_s + QFileInfo(wav).fileName();
    position = 0;
    return present ? std::make_unique<NotingPiece>(*this) : nullptr;
}

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

std::optional<QString> AnsweringChooser::choose(const QString& filter, const QString& name) {
    asked.push_back({filter, name});
    if (whileShown)
        whileShown();
    if (names.empty())
        return std::nullopt;
    const auto chosen = names.front();
    names.erase(names.begin());
    return chosen;
}

} // namespace qinghe::testing
