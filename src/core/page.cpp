#include "core/page.h"

#include "core/navigation.h"

namespace qinghe {

Page::Page(Navigation& navigation, const PageTraits& traits)
    : QObject(&navigation.window()), m_navigation(navigation), m_traits(traits), m_frame(navigation.enter(*this)) {}

std::vector<EditorTarget> Page::searchedLists() const {
    return {};
}

} // namespace qinghe
