#pragma once

#include "whole/ledger_folder.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <span>
#include <string>
#include <utility>
#include <vector>

namespace pictures {

/// What a program finds around it, and what in its book.
struct Look {
    std::string name;
    std::string book = "household";
    std::string skin =
        {}; ///< one of those on offer, "photo" or "twigs" for a picture of the user's own, "" for the delivered one
    QByteArray scale = "1";
    QString screen = QStringLiteral("2560x1440");
    bool dark = false;                ///< the desktop's colours
    std::vector<QString> hidden = {}; ///< files of fonts, as patterns
    QSize forced = {};                ///< the size that the window manager gives the main window, asking nobody
};

/// All of them; the first is that of the committed pictures.
std::span<const Look> looks();

/// Makes a folder and the environment of this process ready for a program of that look; the environment for as long as
/// this stands.
class Dressed {
public:
    Dressed(const Look& look, const whole::LedgerFolder& folder);
    ~Dressed();
    Dressed(const Dressed&) = delete;
    Dressed& operator=(const Dressed&) = delete;

private:
    void set(const char* name, const QByteArray& value);

    std::vector<std::pair<QByteArray, QByteArray>> m_before;
};

} // namespace pictures
