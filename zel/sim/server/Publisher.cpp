// SPDX-License-Identifier: MIT
#include "server/Publisher.h"

#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <unistd.h>

namespace zelsim
{

using zelwire::EpochPage;

Publisher::Publisher(std::uint64_t run)
{
  file_ = ::memfd_create("nevo-store-epochs", MFD_CLOEXEC | MFD_ALLOW_SEALING);
  if (file_ >= 0 && kCatalogueSize <= EpochPage::kSlots && map(run))
    return;
  if (file_ >= 0)
    ::close(file_);
  file_ = -1;
}

bool Publisher::map(std::uint64_t run)
{
  if (::ftruncate(file_, EpochPage::kSize) != 0)
    return false;
  void *memory = ::mmap(nullptr, EpochPage::kSize, PROT_READ | PROT_WRITE, MAP_SHARED, file_, 0);
  if (memory == MAP_FAILED)
    return false;
  page_ = new (memory) EpochPage();
  page_->magic = EpochPage::kMagic;
  page_->run = run;
  lifeline_.hold(page_->keeper);
  // The seal on future writes came with a later kernel than the others; clients trust without it.
#ifdef F_SEAL_FUTURE_WRITE
  ::fcntl(file_, F_ADD_SEALS, F_SEAL_FUTURE_WRITE);
#endif
  return ::fcntl(file_, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) == 0;
}

Publisher::~Publisher()
{
  // Clients keep the memory for as long as they hold their connections.
  lifeline_.letGo();
  if (page_) {
    page_->serving.store(0, std::memory_order_release);
    ::munmap(page_, EpochPage::kSize);
  }
  if (file_ >= 0)
    ::close(file_);
}

void Publisher::hangUp()
{
  if (page_)
    page_->hangUps.fetch_add(1, std::memory_order_acq_rel);
}

std::size_t Publisher::slotOf(const Resource &resource)
{
  return static_cast<std::size_t>(&resource - kCatalogue);
}

void Publisher::publish(const Store &store, const Faults &faults)
{
  if (!page_)
    return;
  for (std::size_t slot = 0; slot < kCatalogueSize; ++slot)
    if (const std::uint64_t revision = store.revision(kCatalogue[slot]);
        revision != page_->epochs[slot].load(std::memory_order_relaxed))
      page_->epochs[slot].store(revision, std::memory_order_release);
  const bool well = faults.slowMs == 0 && !faults.silent && faults.cut == 0 && !faults.drop && !faults.quit &&
                    faults.orders.empty();
  page_->serving.store(well ? 1 : 0, std::memory_order_release);
}

} // namespace zelsim
