// SPDX-License-Identifier: MIT
#ifndef WT_GALLERY_GALLERYAPPLICATION_H_
#define WT_GALLERY_GALLERYAPPLICATION_H_

#include <Wt/WApplication>

namespace gallery
{

/// The page of all sections.
class GalleryApplication : public Wt::WApplication
{
public:
  explicit GalleryApplication(const Wt::WEnvironment &environment);
};

} // namespace gallery

#endif // WT_GALLERY_GALLERYAPPLICATION_H_
