#include "household.h"

#include <gtest/gtest.h>

namespace whole {

void signIn(Program& program) {
    program.click("Form5/Label1");
    program.waitForKeyboard("Form2");
}

void endByCross(Program& program) {
    program.click("Form2/Image3");
    EXPECT_EQ(program.exitCode(), 0);
}

void answer(Program& program, const std::string& text, const std::string& button) {
    EXPECT_EQ(program.message().text, text);
    program.answer(button);
}

} // namespace whole
