#include "runtime/runtime_error.h"

#include <utility>

namespace qinghe {

RuntimeError::RuntimeError(int number, QString text) : m_number(number), m_text(std::move(text)) {
    m_utf8 = m_text.toUtf8();
}

} // namespace qinghe
