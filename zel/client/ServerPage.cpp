// SPDX-License-Identifier: MIT
#include "ServerPage.h"

#include <fcntl.h>
#include <linux/futex.h>
#include <linux/magic.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/vfs.h>

namespace zelclient
{

namespace
{

bool isHarmless(int fd)
{
  const int seals = ::fcntl(fd, F_GET_SEALS);
  struct stat state;
  struct statfs place;
  return seals >= 0 && (seals & F_SEAL_SHRINK) != 0 && ::fstat(fd, &state) == 0 &&
         state.st_size == static_cast<off_t>(zelwire::EpochPage::kSize) && ::fstatfs(fd, &place) == 0 &&
         place.f_type == TMPFS_MAGIC;
}

} // namespace

ServerPage::ServerPage(const zelwire::EpochPage *page)
    : page_(page), run_(page->run), keeper_(page->keeper.load(std::memory_order_acquire))
{
  if ((keeper_ & FUTEX_OWNER_DIED) != 0)
    keeper_ = 0;
}

std::unique_ptr<ServerPage> ServerPage::open(int fd)
{
  if (!isHarmless(fd))
    return nullptr;
  void *memory = ::mmap(nullptr, zelwire::EpochPage::kSize, PROT_READ, MAP_SHARED, fd, 0);
  if (memory == MAP_FAILED)
    return nullptr;
  std::unique_ptr<ServerPage> page(new ServerPage(static_cast<const zelwire::EpochPage *>(memory)));
  if (page->page_->magic != zelwire::EpochPage::kMagic || page->run_ == 0)
    return nullptr;
  return page;
}

ServerPage::~ServerPage()
{
  ::munmap(const_cast<zelwire::EpochPage *>(page_), zelwire::EpochPage::kSize);
}

} // namespace zelclient
