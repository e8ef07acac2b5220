// The picture library, which comes as headers: its code is compiled here, in the extent that the
// build names.
#include <cstdlib>

// Its JPEG reader trusts tables that a broken file never fills: what they hold must not be by
// chance.
#define STBI_MALLOC(size) std::calloc(1, size)
#define STBI_REALLOC(place, size) std::realloc(place, size)
#define STBI_FREE(place) std::free(place)
#define STB_IMAGE_IMPLEMENTATION
#include <stb_image.h>

#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb_image_write.h>

#define STB_IMAGE_RESIZE_IMPLEMENTATION
#include <stb_image_resize.h>
