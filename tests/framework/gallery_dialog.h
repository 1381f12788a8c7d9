// The gallery: one tabbed dialog that holds every control of the framework in every state. The
// gallery program shows it; the random-event test drives it.
#pragma once

#include <memory>

#include "platform/platform.h"

class ADM_TabbedDialog;

namespace gallery {

// Readies the window classes that the gallery needs and gives the dialog, not open yet. hInstance
// holds the resources of gallery.rc. Null when the classes can't be had.
std::unique_ptr<ADM_TabbedDialog> MakeGallery(HINSTANCE hInstance);

// The id of its template.
LPCSTR GalleryTemplate();

}  // namespace gallery
