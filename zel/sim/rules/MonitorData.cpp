// SPDX-License-Identifier: MIT
#include "rules/MonitorData.h"

#include "Base64.h"

namespace zelsim
{

namespace
{

std::string encoded(const MonitorBlock &block)
{
  return zelwire::encodeBase64(block.data(), block.size());
}

} // namespace

unsigned addMonitor(World &world, const std::string &name, const std::string &description,
                    const MonitorBlock &block, bool isProtected)
{
  const unsigned index = world.store.create("edid");
  world.store.setText("edid", index, "name", name);
  world.store.setText("edid", index, "description", description);
  world.store.setText("edid", index, "data", encoded(block));
  world.store.setText("edid", index, "isProtected", isProtected ? "is_true" : "is_false");
  return index;
}

std::string monitorDataOf(const World &world, const Device &device)
{
  std::size_t count = 0;
  const MonitorModel *models = monitorModels(count);
  if (device.isTransmitter()) {
    const std::string pushed = deviceText(world, device, "edidData");
    return pushed.empty() ? encoded(monitorBlock(models[1], 1)) : pushed;
  }
  const auto monitor = static_cast<unsigned>(world.store.number("rx", device.index, "monitor"));
  if (monitor == kBrokenMonitor) {
    MonitorBlock block = monitorBlock(models[0], 1);
    ++block[127];
    return encoded(block);
  }
  return monitor ? encoded(monitorBlock(models[(monitor - 1) % count], 0x20000 + device.index))
                 : std::string();
}

} // namespace zelsim
