// The polygon clipping engine: boolean operations on sets of contours by a
// scanbeam sweep. A plain procedural unit with no dependency on the rest of
// the library. Contours are read by the even-odd rule; hole flags of the
// operands are ignored.
#pragma once

namespace Vantrel {

// Same layout as Point: x then y, both doubles.
struct gpc_vertex {
    double x;
    double y;
};

struct gpc_vertex_list {
    int num_vertices;
    gpc_vertex *vertex;
};

struct gpc_polygon {
    int num_contours;
    int *hole;                // one flag per contour
    gpc_vertex_list *contour; // one list per contour
};

enum gpc_op {
    GPC_DIFF = 0, // subject minus clip
    GPC_INT = 1,  // intersection
    GPC_XOR = 2,  // exclusive or
    GPC_UNION = 3
};

// Computes op(subject, clip) into result, whose earlier contents are not
// read; result may be the subject or the clip itself, which is then freed
// once read. Free the result with gpc_free_polygon.
//
// Beyond the classic engine, for input that rounding makes degenerate:
// - vertices with a non-finite coordinate are left out of their contour, so a
//   contour counts as the polygon of its finite vertices; finite input gives
//   finite output, also where a slope overflows (a rise of 1e-300);
// - a contour whose vertices all lie on one line (to the precision of the
//   arithmetic) encloses nothing and adds no edge;
// - edges are bundled as coincident when they have the same x, to an ulp or
//   two, at both ends of the scanbeam, and x is computed from the nearer end
//   of an edge, so that a far vertex (1e300) costs the near ones no digits;
// - crossings that rounding sorts out of the order in which the edges meet
//   (three or more edges through one point) are taken in an order that can
//   be carried out; one that still cannot is skipped rather than allowed to
//   corrupt the edge table.
//
// Every allocation goes through one rule: out of memory writes
// "gpc malloc failure: <label>" to the standard error stream and ends the
// process with status 0.
void gpc_polygon_clip(gpc_op op, gpc_polygon *subject, gpc_polygon *clip, gpc_polygon *result);

// Frees every vertex array, the hole flags and the contour array, and leaves
// an empty polygon.
void gpc_free_polygon(gpc_polygon *polygon);

} // namespace Vantrel
