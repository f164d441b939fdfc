#include "cmx/OutputMoments.hpp"

#include <string>
#include <string_view>

#include "engine/ValueText.hpp"

namespace zeb {

namespace {

bool scanMoment(std::string_view line, double& moment) {
  FieldScanner scanner(line);
  int id = 0;
  std::string_view equals;
  return scanner.next(id) && scanner.next(equals) && scanner.next(moment);
}

}  // namespace

ListResult readOutputMoments(ListContext& context, SharedArray<double>& moments) {
  const int count = *static_cast<const int*>(context.row.field.locate(context.block));
  double* const entries = moments.allocate(static_cast<std::size_t>(count) + 1);
  std::string line;
  for (int entry = 1; entry <= count && nextLineOfList(context, line); ++entry) {
    reportLineOfList(context, line, scanMoment(line, entries[entry]));
  }
  return ListResult::kSameLine;
}

}  // namespace zeb
