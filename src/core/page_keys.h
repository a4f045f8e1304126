#pragma once

#include "core/names.h"

namespace qinghe {

/// The key that brings a page up, with Alt, as a click on its label does.
struct PageKey {
    PageCode page;
    char key;
};

/// In the order of the labels. A page that is not listed has no key.
inline constexpr PageKey PageKeys[] = {
    {PageCode::Desktop, '1'},  {PageCode::Income, '2'},   {PageCode::Expense, '3'},  {PageCode::Loans, '4'},
    {PageCode::Accounts, '5'}, {PageCode::Budget, '6'},   {PageCode::Charts, '7'},   {PageCode::Users, '8'},
    {PageCode::Diary, '9'},    {PageCode::Schedule, '0'}, {PageCode::Settings, 'S'},
};

} // namespace qinghe
