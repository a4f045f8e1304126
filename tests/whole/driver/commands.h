#pragma once

#include "input.h"

#include <QJsonObject>
#include <QJsonValue>

namespace driver {

/// What a command gives back at once, and the steps that it starts.
struct Outcome {
    QJsonValue value;
    Steps steps;
};

/// Carries out one command: {"do": "click", "at": "Form2/Command6"}. Throws Refusal.
Outcome carryOut(const QJsonObject& command);

} // namespace driver
