// Compares a picture with its golden image: same size, and at most one pixel
// in a thousand with a channel more than 24 levels apart, so that the small
// differences of anti-aliasing pass and a moved or missing callout does not.
#include <cairo.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: compare_png GOLDEN.png ACTUAL.png\n");
        return 2;
    }
    cairo_surface_t *golden = cairo_image_surface_create_from_png(argv[1]);
    cairo_surface_t *actual = cairo_image_surface_create_from_png(argv[2]);
    int status = 1;
    if (cairo_surface_status(golden) || cairo_surface_status(actual)) {
        std::fprintf(stderr, "compare_png: cannot read %s or %s\n", argv[1], argv[2]);
    } else if (cairo_image_surface_get_width(golden) != cairo_image_surface_get_width(actual) ||
               cairo_image_surface_get_height(golden) != cairo_image_surface_get_height(actual)) {
        std::fprintf(stderr, "compare_png: %s is %dx%d, %s is %dx%d\n", argv[1], cairo_image_surface_get_width(golden),
                     cairo_image_surface_get_height(golden), argv[2], cairo_image_surface_get_width(actual),
                     cairo_image_surface_get_height(actual));
    } else {
        int const width = cairo_image_surface_get_width(golden), height = cairo_image_surface_get_height(golden);
        long differing = 0;
        for (int y = 0; y < height; ++y) {
            auto const *g = reinterpret_cast<unsigned const *>(cairo_image_surface_get_data(golden) +
                                                               y * cairo_image_surface_get_stride(golden));
            auto const *a = reinterpret_cast<unsigned const *>(cairo_image_surface_get_data(actual) +
                                                               y * cairo_image_surface_get_stride(actual));
            for (int x = 0; x < width; ++x)
                for (int shift = 0; shift < 32; shift += 8)
                    if (std::abs(int((g[x] >> shift) & 0xff) - int((a[x] >> shift) & 0xff)) > 24) {
                        ++differing;
                        break;
                    }
        }
        long const allowed = long(width) * height / 1000;
        std::printf("compare_png: %ld of %ld pixels differ (at most %ld allowed)\n", differing, long(width) * height,
                    allowed);
        status = differing <= allowed ? 0 : 1;
    }
    if (status)
        std::fprintf(stderr, "compare_png: if the change is intended, refresh the golden image with "
                             "'make gallery-golden'\n");
    cairo_surface_destroy(golden);
    cairo_surface_destroy(actual);
    return status;
}
