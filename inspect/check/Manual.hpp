// The manual of all rules.
#pragma once

#include <string>

namespace zeb {

/// In Markdown.
std::string rulesMarkdown();

}  // namespace zeb
