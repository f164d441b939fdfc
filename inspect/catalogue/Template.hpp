// A parameter file to start from: every key with its default, described, and read back to exactly the defaults.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zeb {

struct TemplateOptions {
  std::optional<int>
      molding;  ///< the place in moldingTypes(): tells which members this molding type changes after reading
  std::vector<std::string> sections;  ///< section or block names, "VER" for the fixed-line head; empty: all
  bool cmx = false;
};

/// The file's text. A key is described only where no text can stand for its default (an unset text, a list, a switch
/// set by a mere word), where the section's gate is shut by default, and where the molding type's repairs change the
/// default. What the library prints while the lines are tried out is discarded.
std::string templateText(const TemplateOptions& options);

/// The names of the sections and blocks that the options can choose.
std::vector<std::string> templateSections(bool cmx);

/// The first of the options' sections that the format does not have; empty when there is none.
std::string unknownTemplateSection(const TemplateOptions& options);

}  // namespace zeb
