#pragma once

#include "platform/services.h"

namespace qinghe {

/// The message boxes of the desktop.
class DesktopMessageBoxes : public MessageBoxes {
public:
    Answer show(const QString& text, MessageStyle style, const QString& title) override;
    void showError(int number, const QString& text, const QString& became) override;
};

} // namespace qinghe
