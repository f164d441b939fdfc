#include "inspect/explain/Settings.hpp"

#include "inspect/explain/Origins.hpp"

namespace zeb {

std::vector<BlockSettings> settingsOf(const std::vector<BlockView>& blocks, const Origins* origins) {
  std::vector<BlockSettings> all;
  for (const BlockView& view : blocks) {
    BlockSettings block{view.name, view.table, {}};
    void* defaults = view.table->create();
    for (const Section& section : view.table->sections) {
      for (const Row& row : section.rows) {
        const bool isElement = row.isElement();
        if (isElement && !row.isDumped()) continue;  // the array itself has its own row
        Setting setting{&row, &section, std::string(row.field.member), valueOf(row, view.block), valueOf(row, defaults),
                        {}};
        if (origins != nullptr) setting.origin = origins->of(row.field.locate(view.block));
        // No line and no repair tells of what a reader concludes from other members, or of what the host sets.
        if (origins != nullptr && setting.origin.kind == Origin::Kind::kDefault && setting.isChanged()) {
          setting.origin.kind = Origin::Kind::kDerived;
        }
        block.settings.push_back(std::move(setting));
      }
    }
    view.table->destroy(defaults);
    all.push_back(std::move(block));
  }
  return all;
}

}  // namespace zeb
