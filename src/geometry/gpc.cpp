// The scanbeam polygon clipper. The sweep runs a horizontal line from the
// smallest y to the largest; between two successive vertex heights (a
// scanbeam) the active edge table holds the edges crossing the band in order
// of x. At each height and each crossing of two edges the four quadrants
// around the point are classified as inside or outside the result, and the
// class decides how output contours start, grow at either end, and merge.
#include "geometry/gpc.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <vector>

namespace Vantrel {

namespace {

double const GPC_EPSILON = DBL_EPSILON;
// Beyond this extent an edge's rounding reaches a ten-thousandth of a unit.
double const kFarSpan = 1e12;

enum { LEFT = 0, RIGHT = 1 };  // output ends, and parity
enum { ABOVE = 0, BELOW = 1 }; // sides of a scanbeam boundary
enum { CLIP = 0, SUBJ = 1 };   // operands

enum bundle_state { UNBUNDLED = 0, BUNDLE_HEAD = 1, BUNDLE_TAIL = 2 };

// Horizontal-edge state of one operand along a boundary: none, bottom, top.
enum h_state { NH = 0, BH = 1, TH = 2 };

// Vertex classes: tr + 2 tl + 4 br + 8 bl, each quadrant inside the result or not.
enum vertex_type {
    NUL = 0,  // empty non-intersection
    EMX = 1,  // external maximum
    ELI = 2,  // external left intermediate
    TED = 3,  // top edge
    ERI = 4,  // external right intermediate
    RED = 5,  // right edge
    IMM = 6,  // internal maximum and minimum
    IMN = 7,  // internal minimum
    EMN = 8,  // external minimum
    EMM = 9,  // external maximum and minimum
    LED = 10, // left edge
    ILI = 11, // internal left intermediate
    BED = 12, // bottom edge
    IRI = 13, // internal right intermediate
    IMX = 14, // internal maximum
    FUL = 15  // full non-intersection
};

// Next horizontal state, by the current state and (exists - 1) * 2 + parity,
// exists being 1 for an edge above the boundary only, 2 below only, 3 across.
h_state const next_h_state[3][6] = {
    {BH, TH, TH, BH, NH, NH},
    {NH, NH, NH, NH, TH, TH},
    {NH, NH, NH, NH, BH, BH},
};

// Equal within the rounding of the larger of the two, or GPC_EPSILON near 0:
// two edges computed from different vertices of one line differ by an ulp or
// two of their x, which an absolute epsilon misses beyond x = 1.
bool EQ(double a, double b) {
    double const d = std::fabs(a - b);
    return d <= GPC_EPSILON || d <= 2 * GPC_EPSILON * std::max(std::fabs(a), std::fabs(b));
}

struct vertex_node {
    double x, y;
    vertex_node *next;
};

// One growing output contour. Contours merge: the node holding the merged
// vertex list is the proxy of the others. Proxies are followed lazily, with
// path halving, instead of redirecting every node of the output list at each
// merge; the result is the same.
struct polygon_node {
    int active; // true while open or finished, later the vertex count
    int hole;   // set when the contour closes
    vertex_node *v[2];
    polygon_node *next;
    polygon_node *proxy;
};

struct edge_node {
    gpc_vertex vertex; // scratch while the table is built
    gpc_vertex bot;
    gpc_vertex top;
    double xb, xt, dx;
    bool far; // spans so far that its x is measured from its nearer end
    int type;
    int bundle[2][2];
    int bside[2];
    bundle_state bstate[2];
    polygon_node *outp[2];
    edge_node *prev, *next; // in the active edge table
    edge_node *pred, *succ; // in the bound
    edge_node *next_bound;
};

struct lmt_node {
    double y;
    edge_node *first_bound;
    lmt_node *next;
};

struct it_node {
    edge_node *ie[2];
    gpc_vertex point; // y relative to the bottom of the scanbeam
    it_node *next;
};

struct st_node {
    edge_node *edge;
    double xb, xt, dx;
    st_node *prev;
};

struct bbox {
    double xmin, ymin, xmax, ymax;
};

// The one allocation rule: nothing for a size of 0, the end of the process on failure.
template <class T> T *allocate(size_t count, char const *label) {
    if (count == 0)
        return nullptr;
    void *p = count > SIZE_MAX / sizeof(T) ? nullptr : std::malloc(count * sizeof(T));
    if (!p) {
        std::fprintf(stderr, "gpc malloc failure: %s\n", label);
        std::exit(0);
    }
    return static_cast<T *>(p);
}

// Nodes of one kind, handed out from blocks that are kept until the pool
// goes: the sweep makes and drops nodes by the thousand, and one allocation
// per node would dominate its time.
template <class T> class NodePool {
public:
    explicit NodePool(char const *label) : label(label) {}
    ~NodePool() {
        for (T *block : blocks)
            std::free(block);
    }
    NodePool(NodePool const &) = delete;
    NodePool &operator=(NodePool const &) = delete;

    T *take() {
        if (used == kBlock) {
            if (++current >= blocks.size())
                blocks.push_back(allocate<T>(kBlock, label));
            used = 0;
        }
        return &blocks[current][used++];
    }
    // Every node handed out is dropped; the blocks are used again.
    void reset() {
        current = 0;
        used = blocks.empty() ? kBlock : 0;
        if (blocks.empty())
            current = size_t(-1);
    }

private:
    static size_t const kBlock = 256;
    char const *label;
    std::vector<T *> blocks;
    size_t current = size_t(-1);
    size_t used = kBlock;
};

// The pools of one call of the engine.
struct Pools {
    NodePool<vertex_node> vertices{"vertex node creation"};
    NodePool<polygon_node> contours{"polygon node creation"};
    NodePool<it_node> intersections{"IT insertion"};
    NodePool<st_node> sortedEdges{"ST insertion"};
};

int prevIndex(int i, int n) { return (i - 1 + n) % n; }
int nextIndex(int i, int n) { return (i + 1) % n; }

bool finite(gpc_vertex const &v) { return std::isfinite(v.x) && std::isfinite(v.y); }

// Whether c lies on the line through a and b as far as double arithmetic can
// tell: the orientation determinant is within its own rounding error bound
// of zero.
bool onLine(gpc_vertex const &a, gpc_vertex const &b, gpc_vertex const &c) {
    double const left = (a.x - c.x) * (b.y - c.y), right = (a.y - c.y) * (b.x - c.x);
    return std::fabs(left - right) <= 4 * DBL_EPSILON * (std::fabs(left) + std::fabs(right));
}

// A contour whose vertices all lie on one line encloses nothing by any rule.
// Its edges come in coincident pairs that cancel in exact arithmetic, but
// computed apart they may not cancel and would cut slivers out of other
// contours; such a contour adds no edge at all.
bool enclosesNothing(gpc_vertex const *v, int n) {
    int low = 0, high = 0; // the extremes along the wider axis of the box
    double xmin = v[0].x, xmax = v[0].x, ymin = v[0].y, ymax = v[0].y;
    for (int i = 1; i < n; ++i) {
        xmin = std::min(xmin, v[i].x), xmax = std::max(xmax, v[i].x);
        ymin = std::min(ymin, v[i].y), ymax = std::max(ymax, v[i].y);
    }
    bool const alongX = xmax - xmin >= ymax - ymin;
    for (int i = 1; i < n; ++i) {
        double const key = alongX ? v[i].x : v[i].y;
        if (key < (alongX ? v[low].x : v[low].y))
            low = i;
        if (key > (alongX ? v[high].x : v[high].y))
            high = i;
    }
    for (int i = 0; i < n; ++i)
        if (!onLine(v[low], v[high], v[i]))
            return false;
    return true;
}

// The finite vertices of a contour that are optimal: not inside a horizontal
// run, that is not with both neighbours at their own y. Writes them to out
// when it is given, and returns their count: none for a contour that
// encloses nothing.
int optimalVertices(gpc_vertex_list const &contour, gpc_vertex *out) {
    std::vector<gpc_vertex> kept;
    gpc_vertex const *v = contour.vertex;
    int n = contour.num_vertices;
    bool allFinite = true;
    for (int i = 0; i < n && allFinite; ++i)
        allFinite = finite(v[i]);
    if (!allFinite) {
        for (int i = 0; i < n; ++i)
            if (finite(v[i]))
                kept.push_back(v[i]);
        v = kept.data();
        n = int(kept.size());
    }
    if (n < 3 || enclosesNothing(v, n))
        return 0;
    int count = 0;
    for (int i = 0; i < n; ++i) {
        if (v[prevIndex(i, n)].y != v[i].y || v[nextIndex(i, n)].y != v[i].y) {
            if (out)
                out[count] = v[i];
            ++count;
        }
    }
    return count;
}

bool boundAfter(edge_node const *a, edge_node const *b) {
    return a->bot.x > b->bot.x || (a->bot.x == b->bot.x && a->dx > b->dx);
}

// The local minima table while it is built: the bounds of each height in
// the order they came, sorted once when they are linked into nodes in
// ascending height. Inserting one by one into a sorted array would be
// quadratic in the bounds of one height, and a dashed line has thousands.
struct LmtBuilder {
    std::map<double, std::vector<edge_node *>> byY;

    void insertBound(double y, edge_node *e) { byY[y].push_back(e); }

    // Within a height, a bound goes before the first with a greater bot.x, or
    // the same bot.x and a greater dx: after all its equals, as a stable sort
    // by (bot.x, dx) places it.
    lmt_node *link() {
        lmt_node *head = nullptr, **tail = &head;
        for (auto &entry : byY) {
            std::stable_sort(entry.second.begin(), entry.second.end(),
                             [](edge_node const *a, edge_node const *b) { return boundAfter(b, a); });
            lmt_node *node = allocate<lmt_node>(1, "LMT insertion");
            node->y = entry.first;
            node->next = nullptr;
            edge_node **bound = &node->first_bound;
            for (edge_node *e : entry.second) {
                *bound = e;
                bound = &e->next_bound;
            }
            *bound = nullptr;
            *tail = node;
            tail = &node->next;
        }
        byY.clear();
        return head;
    }
};

// Builds the bounds of one operand into one edge array, registering the
// vertex heights and the bounds' minima. Returns the array (or null).
edge_node *buildEdges(LmtBuilder &lmt, std::vector<double> &heights, gpc_polygon *p, int type, gpc_op op) {
    int total = 0;
    for (int c = 0; c < p->num_contours; ++c)
        if (p->contour[c].num_vertices > 0)
            total += optimalVertices(p->contour[c], nullptr);
    edge_node *table = allocate<edge_node>(size_t(total), "edge table creation");

    int edgeIndex = 0;
    for (int c = 0; c < p->num_contours; ++c) {
        gpc_vertex_list &contour = p->contour[c];
        if (contour.num_vertices < 0) {
            contour.num_vertices = -contour.num_vertices; // a mark of the overlap test
            continue;
        }
        if (contour.num_vertices == 0)
            continue;
        // The contour's optimal vertices go into the scratch fields of the first entries.
        std::vector<gpc_vertex> scratch(size_t(contour.num_vertices));
        int n = optimalVertices(contour, scratch.data());
        for (int i = 0; i < n; ++i) {
            table[i].vertex = scratch[i];
            heights.push_back(scratch[i].y);
        }
        auto y = [&](int i) { return table[i].vertex.y; };

        // Forward bounds rise along NEXT, reverse bounds along PREV. The
        // asymmetric comparisons give a flat bottom one bound of each kind.
        for (int direction = 0; direction < 2; ++direction) {
            bool forward = direction == 0;
            auto step = [&](int i) { return forward ? nextIndex(i, n) : prevIndex(i, n); };
            for (int min = 0; min < n; ++min) {
                bool isMin = forward ? (y(prevIndex(min, n)) >= y(min) && y(nextIndex(min, n)) > y(min))
                                     : (y(prevIndex(min, n)) > y(min) && y(nextIndex(min, n)) >= y(min));
                if (!isMin)
                    continue;
                int edges = 1;
                for (int m = step(min); y(step(m)) > y(m); m = step(m))
                    ++edges;
                edge_node *e = &table[edgeIndex];
                edgeIndex += edges;
                e[0].bstate[BELOW] = UNBUNDLED;
                e[0].bundle[BELOW][CLIP] = false;
                e[0].bundle[BELOW][SUBJ] = false;
                int v = min;
                for (int k = 0; k < edges; ++k) {
                    e[k].xb = table[v].vertex.x;
                    e[k].bot = table[v].vertex;
                    v = step(v);
                    e[k].top = table[v].vertex;
                    e[k].dx = (e[k].top.x - e[k].bot.x) / (e[k].top.y - e[k].bot.y);
                    e[k].far = !(std::fabs(e[k].top.x - e[k].bot.x) <= kFarSpan &&
                                 std::fabs(e[k].top.y - e[k].bot.y) <= kFarSpan);
                    e[k].type = type;
                    e[k].outp[ABOVE] = nullptr;
                    e[k].outp[BELOW] = nullptr;
                    e[k].next = nullptr;
                    e[k].prev = nullptr;
                    e[k].succ = k + 1 < edges ? &e[k + 1] : nullptr;
                    e[k].pred = k > 0 ? &e[k - 1] : nullptr;
                    e[k].next_bound = nullptr;
                    e[k].bside[CLIP] = op == GPC_DIFF ? RIGHT : LEFT;
                    e[k].bside[SUBJ] = LEFT;
                }
                lmt.insertBound(table[min].vertex.y, e);
            }
        }
    }
    return table;
}

// The edge's x at height y, between its ends. An edge that spans more than
// kFarSpan has it measured from the end nearer in height: from a far end
// (1e300 away, say) the slope's rounding alone would swamp every digit of x.
// Other edges measure from the bottom, as the sweep's hot loop wants a
// branch it can predict. An edge that is nearly horizontal has a
// slope that overflows; its x then comes from the fraction of its height, so
// that no coordinate becomes infinite or NaN.
double xAt(edge_node const *edge, double y) {
    gpc_vertex const &near = !edge->far || y - edge->bot.y <= edge->top.y - y ? edge->bot : edge->top;
    double const x = near.x + edge->dx * (y - near.y);
    if (std::isfinite(x))
        return x;
    double const t = (y - edge->bot.y) / (edge->top.y - edge->bot.y);
    return (1 - t) * edge->bot.x + t * edge->top.x;
}

// The edge's x at the top of the scanbeam that ends at yt.
double xTop(edge_node const *edge, double yt) { return edge->top.y == yt ? edge->top.x : xAt(edge, yt); }

// Whether two edges that go on above the boundary coincide throughout the
// scanbeam: the same x at its bottom and at its top. Equal slopes alone
// would not do: over a beam 1e299 high, slopes that agree to the last digit
// still part by many units.
bool coincide(edge_node const *a, edge_node const *b, double yt) {
    return EQ(a->xb, b->xb) && EQ(xTop(a, yt), xTop(b, yt));
}

// The active edge table: ordered by xb, then dx; a new edge goes behind its
// equals. The bounds of one local minimum come in ascending order, so the walk
// for each may start at the one added before it (from): every edge before that
// one is not greater than it, and so not greater than this one.
void addEdgeToAet(edge_node **aet, edge_node *edge, edge_node *from) {
    edge_node *prev = from;
    edge_node *at = from ? from->next : *aet;
    while (at && !(at->xb > edge->xb || (at->xb == edge->xb && at->dx > edge->dx))) {
        prev = at;
        at = at->next;
    }
    edge->prev = prev;
    edge->next = at;
    if (at)
        at->prev = edge;
    if (prev)
        prev->next = edge;
    else
        *aet = edge;
}

// Ascending y; of equals the older comes first.
void addIntersection(Pools &pools, it_node **it, edge_node *edge0, edge_node *edge1, double x, double y) {
    while (*it && !((*it)->point.y > y))
        it = &(*it)->next;
    it_node *node = pools.intersections.take();
    node->ie[0] = edge0;
    node->ie[1] = edge1;
    node->point.x = x;
    node->point.y = y;
    node->next = *it;
    *it = node;
}

// Adds an edge to the sorted edge table, recording its crossings with the
// edges it passes on the way.
void addStEdge(Pools &pools, st_node **st, it_node **it, edge_node *edge, double dy) {
    while (*st) {
        st_node *s = *st;
        // The gaps between the two at the top and at the bottom, each taken
        // first: two edges from one far vertex have the same huge x there,
        // which a difference of their own runs would cancel with every digit.
        double den = (s->xt - edge->xt) - (s->xb - edge->xb);
        // Edges whose slopes agree to the last digit may still cross within a
        // tall beam, so only the gaps decide.
        if (edge->xt >= s->xt || std::fabs(den) <= GPC_EPSILON)
            break;
        // The crossing lies within the scanbeam; rounding of nearly parallel
        // edges may put r outside it, or, with overflowing differences, make
        // it NaN. Its x is measured from the nearer end of the beam.
        double r = (edge->xb - s->xb) / den;
        r = r > 1 ? 1 : r >= 0 ? r : 0;
        double x = r <= 0.5 ? s->xb + r * (s->xt - s->xb) : s->xt - (1 - r) * (s->xt - s->xb);
        if (!std::isfinite(x))
            x = (1 - r) * s->xb + r * s->xt;
        addIntersection(pools, it, s->edge, edge, x, r * dy);
        st = &s->prev;
    }
    st_node *node = pools.sortedEdges.take();
    node->edge = edge;
    node->xb = edge->xb;
    node->xt = edge->xt;
    node->dx = edge->dx;
    node->prev = *st;
    *st = node;
}

// The table of the previous scanbeam is dropped.
void buildIntersectionTable(Pools &pools, it_node **it, edge_node *aet, double dy) {
    pools.intersections.reset();
    *it = nullptr;
    st_node *st = nullptr;
    for (edge_node *edge = aet; edge; edge = edge->next)
        if (edge->bstate[ABOVE] == BUNDLE_HEAD || edge->bundle[ABOVE][CLIP] || edge->bundle[ABOVE][SUBJ])
            addStEdge(pools, &st, it, edge, dy);
    pools.sortedEdges.reset();
}

// Output contours.

polygon_node *proxyOf(polygon_node *p) {
    while (p->proxy != p) {
        p->proxy = p->proxy->proxy;
        p = p->proxy;
    }
    return p;
}

vertex_node *newVertex(Pools &pools, double x, double y) {
    vertex_node *v = pools.vertices.take();
    v->x = x;
    v->y = y;
    v->next = nullptr;
    return v;
}

void addLocalMin(Pools &pools, polygon_node **out, edge_node *edge, double x, double y) {
    polygon_node *p = pools.contours.take();
    p->active = true;
    p->hole = false; // written for real when the contour closes
    p->v[LEFT] = p->v[RIGHT] = newVertex(pools, x, y);
    p->proxy = p;
    p->next = *out;
    *out = p;
    edge->outp[ABOVE] = p;
}

// The sweep keeps every contour it adds to; a null one can only come from
// input that rounding made inconsistent, and is passed over.
void addLeft(Pools &pools, polygon_node *p, double x, double y) {
    if (!p)
        return;
    polygon_node *holder = proxyOf(p);
    vertex_node *v = newVertex(pools, x, y);
    v->next = holder->v[LEFT];
    holder->v[LEFT] = v;
}

void addRight(Pools &pools, polygon_node *p, double x, double y) {
    if (!p)
        return;
    polygon_node *holder = proxyOf(p);
    vertex_node *v = newVertex(pools, x, y);
    holder->v[RIGHT]->next = v;
    holder->v[RIGHT] = v;
}

// p's list goes in front of q's; the contour closes as a hole.
void mergeLeft(polygon_node *p, polygon_node *q) {
    if (!p || !q)
        return;
    polygon_node *from = proxyOf(p), *into = proxyOf(q);
    into->hole = true;
    if (from != into) {
        from->v[RIGHT]->next = into->v[LEFT];
        into->v[LEFT] = from->v[LEFT];
        from->active = false;
        from->proxy = into;
    }
}

// p's list goes behind q's; the contour closes as an external one.
void mergeRight(polygon_node *p, polygon_node *q) {
    if (!p || !q)
        return;
    polygon_node *from = proxyOf(p), *into = proxyOf(q);
    into->hole = false;
    if (from != into) {
        into->v[RIGHT]->next = from->v[LEFT];
        into->v[RIGHT] = from->v[RIGHT];
        from->active = false;
        from->proxy = into;
    }
}

// Phase 2: contours whose box meets no contour of the other operand cannot
// take part in an intersection (nor a clip contour in a difference); they are
// marked by a negative vertex count, which building the edges repairs.
void markNonOverlapping(gpc_polygon *subject, gpc_polygon *clip, gpc_op op) {
    auto boxes = [](gpc_polygon *p) {
        bbox *b = allocate<bbox>(size_t(p->num_contours), "Bounding box creation");
        for (int c = 0; c < p->num_contours; ++c) {
            b[c] = {DBL_MAX, DBL_MAX, -DBL_MAX, -DBL_MAX};
            for (int v = 0; v < p->contour[c].num_vertices; ++v) {
                gpc_vertex const &p0 = p->contour[c].vertex[v];
                b[c].xmin = std::min(b[c].xmin, p0.x);
                b[c].ymin = std::min(b[c].ymin, p0.y);
                b[c].xmax = std::max(b[c].xmax, p0.x);
                b[c].ymax = std::max(b[c].ymax, p0.y);
            }
        }
        return b;
    };
    bbox *s = boxes(subject), *k = boxes(clip);
    auto overlap = [](bbox const &a, bbox const &b) {
        return !(a.xmax < b.xmin || b.xmax < a.xmin || a.ymax < b.ymin || b.ymax < a.ymin);
    };
    for (int c = 0; c < clip->num_contours; ++c) {
        bool any = false;
        for (int t = 0; t < subject->num_contours && !any; ++t)
            any = overlap(s[t], k[c]);
        if (!any)
            clip->contour[c].num_vertices = -clip->contour[c].num_vertices;
    }
    if (op == GPC_INT) {
        for (int t = 0; t < subject->num_contours; ++t) {
            bool any = false;
            for (int c = 0; c < clip->num_contours && !any; ++c)
                any = overlap(s[t], k[c]);
            if (!any)
                subject->contour[t].num_vertices = -subject->contour[t].num_vertices;
        }
    }
    std::free(s);
    std::free(k);
}

void setEmpty(gpc_polygon *p) {
    p->num_contours = 0;
    p->hole = nullptr;
    p->contour = nullptr;
}

// Quadrant occupancies of the operands combined by the operation.
int combine(gpc_op op, int clipValue, int subjValue) {
    switch (op) {
    case GPC_DIFF:
    case GPC_INT:
        return clipValue && subjValue;
    case GPC_XOR:
        return clipValue ^ subjValue;
    default:
        return clipValue || subjValue;
    }
}

// Whether e1 follows e0 across nothing but bundle tails: the order in which
// a crossing can be carried out on the active edge table.
bool crossingInOrder(edge_node *e0, edge_node *e1) {
    for (edge_node *e = e0->next; e; e = e->next) {
        if (e == e1)
            return true;
        if (e->bstate[ABOVE] != BUNDLE_TAIL)
            return false;
    }
    return false;
}

// Three or more edges that cross at one point have their crossings computed
// apart, and rounding may sort them so that the first to come is between
// edges that are not neighbours yet. The first later crossing whose edges are
// neighbours now is taken in its place; the crossing it displaces comes up
// again at the later place. False when there is none.
bool bringForwardReadyCrossing(it_node *node) {
    for (it_node *ready = node->next; ready; ready = ready->next) {
        if (crossingInOrder(ready->ie[0], ready->ie[1])) {
            std::swap(node->ie, ready->ie);
            std::swap(node->point, ready->point);
            return true;
        }
    }
    return false;
}

// Phase 6: the contours of at least 3 vertices, most recently started first,
// each list stored from its last vertex down. The nodes belong to the pools.
void writeResult(polygon_node *out, gpc_polygon *result) {
    int contours = 0;
    for (polygon_node *p = out; p; p = p->next) {
        if (!p->active)
            continue;
        int count = 0;
        for (vertex_node *v = p->v[LEFT]; v; v = v->next)
            ++count;
        if (count > 2) {
            p->active = count;
            ++contours;
        } else {
            p->active = 0; // too few vertices to be a contour
        }
    }
    if (contours == 0) {
        setEmpty(result);
    } else {
        result->num_contours = contours;
        result->hole = allocate<int>(size_t(contours), "hole flag table creation");
        result->contour = allocate<gpc_vertex_list>(size_t(contours), "contour creation");
        int c = 0;
        for (polygon_node *p = out; p; p = p->next) {
            if (!p->active)
                continue;
            result->hole[c] = p->hole;
            result->contour[c].num_vertices = p->active;
            result->contour[c].vertex = allocate<gpc_vertex>(size_t(p->active), "vertex creation");
            int index = p->active - 1;
            for (vertex_node *v = p->v[LEFT]; v; v = v->next, --index) {
                result->contour[c].vertex[index].x = v->x;
                result->contour[c].vertex[index].y = v->y;
            }
            ++c;
        }
    }
}

// The sweep's state from one scanbeam to the next; its four steps work on
// the scanbeam from yb to yt.
struct Sweep {
    gpc_op op;
    Pools &pools;
    edge_node *aet;
    polygon_node *out;
    it_node *it;
    int parity[2];
    lmt_node *localMin;
    double yb = 0, yt = 0, dy = 0;

    void joinNewBounds();
    void markBundles();
    void boundaryStep();
    void endingStep();
    void crossingStep();
    void closingStep();
};

// New bounds of the local minimum at this boundary join the table.
void Sweep::joinNewBounds() {
    if (localMin && localMin->y == yb) {
        edge_node *added = nullptr;
        for (edge_node *edge = localMin->first_bound; edge; edge = edge->next_bound) {
            addEdgeToAet(&aet, edge, added);
            added = edge;
        }
        localMin = localMin->next;
    }
}

// Bundles: coincident edges above the boundary act as one.
void Sweep::markBundles() {
    if (aet) {
        edge_node *e0 = aet;
        for (edge_node *e = aet; e; e = e->next) {
            e->bundle[ABOVE][e->type] = e->top.y != yb;
            e->bundle[ABOVE][!e->type] = false;
            e->bstate[ABOVE] = UNBUNDLED;
            if (e == aet || !e->bundle[ABOVE][e->type])
                continue;
            if (e0->top.y != yb && coincide(e0, e, yt)) {
                e->bundle[ABOVE][e->type] ^= e0->bundle[ABOVE][e->type];
                e->bundle[ABOVE][!e->type] = e0->bundle[ABOVE][!e->type];
                e->bstate[ABOVE] = BUNDLE_HEAD;
                e0->bundle[ABOVE][CLIP] = false;
                e0->bundle[ABOVE][SUBJ] = false;
                e0->bstate[ABOVE] = BUNDLE_TAIL;
            }
            e0 = e;
        }
    }
}

// Boundary step: new bounds join the table, coincident edges bundle, and each
// contributing bundle adds to or closes the output contours.
void Sweep::boundaryStep() {
    joinNewBounds();
    markBundles();
    double px = -DBL_MAX;
    int horiz[2] = {NH, NH};
    polygon_node *cf = nullptr;
    for (edge_node *edge = aet; edge; edge = edge->next) {
        int exists[2];
        for (int x = 0; x < 2; ++x)
            exists[x] = edge->bundle[ABOVE][x] + 2 * edge->bundle[BELOW][x];
        if (!exists[CLIP] && !exists[SUBJ])
            continue;

        edge->bside[CLIP] = parity[CLIP];
        edge->bside[SUBJ] = parity[SUBJ];

        int q[4][2]; // br, bl, tr, tl per operand
        for (int x = 0; x < 2; ++x) {
            int p = parity[x], h = horiz[x] != NH;
            q[0][x] = p;
            q[1][x] = p ^ edge->bundle[ABOVE][x];
            q[2][x] = p ^ h;
            q[3][x] = p ^ h ^ edge->bundle[BELOW][x];
        }
        bool hClip = horiz[CLIP] != NH, hSubj = horiz[SUBJ] != NH;
        bool bothSame = exists[CLIP] && exists[SUBJ] && parity[CLIP] == parity[SUBJ];
        bool contributing;
        if (op == GPC_XOR)
            contributing = exists[CLIP] || exists[SUBJ];
        else if (op == GPC_UNION)
            contributing =
                (exists[CLIP] && (!parity[SUBJ] || hSubj)) || (exists[SUBJ] && (!parity[CLIP] || hClip)) || bothSame;
        else
            contributing =
                (exists[CLIP] && (parity[SUBJ] || hSubj)) || (exists[SUBJ] && (parity[CLIP] || hClip)) || bothSame;
        int br = combine(op, q[0][CLIP], q[0][SUBJ]);
        int bl = combine(op, q[1][CLIP], q[1][SUBJ]);
        int tr = combine(op, q[2][CLIP], q[2][SUBJ]);
        int tl = combine(op, q[3][CLIP], q[3][SUBJ]);

        parity[CLIP] ^= edge->bundle[ABOVE][CLIP];
        parity[SUBJ] ^= edge->bundle[ABOVE][SUBJ];
        for (int x = 0; x < 2; ++x)
            if (exists[x])
                horiz[x] = next_h_state[horiz[x]][(exists[x] - 1) * 2 + parity[x]];

        if (!contributing)
            continue;
        double xb = edge->xb;
        bool moved = xb != px;
        switch (tr + 2 * tl + 4 * br + 8 * bl) {
        case EMN:
        case IMN:
            addLocalMin(pools, &out, edge, xb, yb);
            px = xb;
            cf = edge->outp[ABOVE];
            break;
        case ERI:
            if (moved) {
                addRight(pools, cf, xb, yb);
                px = xb;
            }
            edge->outp[ABOVE] = cf;
            cf = nullptr;
            break;
        case ELI:
            addLeft(pools, edge->outp[BELOW], xb, yb);
            px = xb;
            cf = edge->outp[BELOW];
            break;
        case EMX:
            if (moved) {
                addLeft(pools, cf, xb, yb);
                px = xb;
            }
            mergeRight(cf, edge->outp[BELOW]);
            cf = nullptr;
            break;
        case ILI:
            if (moved) {
                addLeft(pools, cf, xb, yb);
                px = xb;
            }
            edge->outp[ABOVE] = cf;
            cf = nullptr;
            break;
        case IRI:
            addRight(pools, edge->outp[BELOW], xb, yb);
            px = xb;
            cf = edge->outp[BELOW];
            edge->outp[BELOW] = nullptr;
            break;
        case IMX:
            if (moved) {
                addRight(pools, cf, xb, yb);
                px = xb;
            }
            mergeLeft(cf, edge->outp[BELOW]);
            cf = nullptr;
            edge->outp[BELOW] = nullptr;
            break;
        case IMM:
            if (moved) {
                addRight(pools, cf, xb, yb);
                px = xb;
            }
            mergeLeft(cf, edge->outp[BELOW]);
            edge->outp[BELOW] = nullptr;
            addLocalMin(pools, &out, edge, xb, yb);
            cf = edge->outp[ABOVE];
            break;
        case EMM:
            if (moved) {
                addLeft(pools, cf, xb, yb);
                px = xb;
            }
            mergeRight(cf, edge->outp[BELOW]);
            edge->outp[BELOW] = nullptr;
            addLocalMin(pools, &out, edge, xb, yb);
            cf = edge->outp[ABOVE];
            break;
        case LED:
            if (edge->bot.y == yb)
                addLeft(pools, edge->outp[BELOW], xb, yb);
            edge->outp[ABOVE] = edge->outp[BELOW];
            px = xb;
            break;
        case RED:
            if (edge->bot.y == yb)
                addRight(pools, edge->outp[BELOW], xb, yb);
            edge->outp[ABOVE] = edge->outp[BELOW];
            px = xb;
            break;
        default:
            break;
        }
    }
}

// Ending step: edges that end here leave; the others get their x at the top.
void Sweep::endingStep() {
    for (edge_node *edge = aet; edge; edge = edge->next) {
        if (edge->top.y == yb) {
            edge_node *prev = edge->prev, *next = edge->next;
            if (prev)
                prev->next = next;
            else
                aet = next;
            if (next)
                next->prev = prev;
            // A bundle head that leaves hands its contour to its tail.
            if (edge->bstate[BELOW] == BUNDLE_HEAD && prev && prev->bstate[BELOW] == BUNDLE_TAIL) {
                prev->outp[BELOW] = edge->outp[BELOW];
                prev->bstate[BELOW] = UNBUNDLED;
                if (prev->prev && prev->prev->bstate[BELOW] == BUNDLE_TAIL)
                    prev->bstate[BELOW] = BUNDLE_HEAD;
            }
        } else {
            edge->xt = xTop(edge, yt);
        }
    }
}

// Crossing step: crossings inside the scanbeam, lowest first.
void Sweep::crossingStep() {
    buildIntersectionTable(pools, &it, aet, dy);
    for (it_node *node = it; node; node = node->next) {
        if (!crossingInOrder(node->ie[0], node->ie[1]) && !bringForwardReadyCrossing(node))
            continue;
        edge_node *e0 = node->ie[0], *e1 = node->ie[1];
        bool above0 = e0->bundle[ABOVE][CLIP] || e0->bundle[ABOVE][SUBJ];
        bool above1 = e1->bundle[ABOVE][CLIP] || e1->bundle[ABOVE][SUBJ];
        if (above0 && above1) {
            polygon_node *p = e0->outp[ABOVE], *q = e1->outp[ABOVE];
            double ix = node->point.x, iy = node->point.y + yb;
            int in[2];
            for (int x = 0; x < 2; ++x)
                in[x] = (e0->bundle[ABOVE][x] && !e0->bside[x]) || (e1->bundle[ABOVE][x] && e1->bside[x]) ||
                        (!e0->bundle[ABOVE][x] && !e1->bundle[ABOVE][x] && e0->bside[x] && e1->bside[x]);
            auto quadrant = [&](int with0, int with1) {
                int c = in[CLIP] ^ (with1 ? e1->bundle[ABOVE][CLIP] : 0) ^ (with0 ? e0->bundle[ABOVE][CLIP] : 0);
                int s = in[SUBJ] ^ (with1 ? e1->bundle[ABOVE][SUBJ] : 0) ^ (with0 ? e0->bundle[ABOVE][SUBJ] : 0);
                return combine(op, c, s);
            };
            int tr = quadrant(0, 0), tl = quadrant(0, 1), br = quadrant(1, 0), bl = quadrant(1, 1);
            switch (tr + 2 * tl + 4 * br + 8 * bl) {
            case EMN:
            case IMN:
                addLocalMin(pools, &out, e0, ix, iy);
                e1->outp[ABOVE] = e0->outp[ABOVE];
                break;
            case ERI:
                if (p) {
                    addRight(pools, p, ix, iy);
                    e1->outp[ABOVE] = p;
                    e0->outp[ABOVE] = nullptr;
                }
                break;
            case ELI:
                if (q) {
                    addLeft(pools, q, ix, iy);
                    e0->outp[ABOVE] = q;
                    e1->outp[ABOVE] = nullptr;
                }
                break;
            case EMX:
                if (p && q) {
                    addLeft(pools, p, ix, iy);
                    mergeRight(p, q);
                    e0->outp[ABOVE] = nullptr;
                    e1->outp[ABOVE] = nullptr;
                }
                break;
            case ILI:
                if (p) {
                    addLeft(pools, p, ix, iy);
                    e1->outp[ABOVE] = p;
                    e0->outp[ABOVE] = nullptr;
                }
                break;
            case IRI:
                if (q) {
                    addRight(pools, q, ix, iy);
                    e0->outp[ABOVE] = q;
                    e1->outp[ABOVE] = nullptr;
                }
                break;
            case IMX:
                if (p && q) {
                    addRight(pools, p, ix, iy);
                    mergeLeft(p, q);
                    e0->outp[ABOVE] = nullptr;
                    e1->outp[ABOVE] = nullptr;
                }
                break;
            case IMM:
                if (p && q) {
                    addRight(pools, p, ix, iy);
                    mergeLeft(p, q);
                    addLocalMin(pools, &out, e0, ix, iy);
                    e1->outp[ABOVE] = e0->outp[ABOVE];
                }
                break;
            case EMM:
                if (p && q) {
                    addLeft(pools, p, ix, iy);
                    mergeRight(p, q);
                    addLocalMin(pools, &out, e0, ix, iy);
                    e1->outp[ABOVE] = e0->outp[ABOVE];
                }
                break;
            default:
                break;
            }
        }

        // The bundles change sides as they cross.
        for (int x = 0; x < 2; ++x) {
            if (e0->bundle[ABOVE][x])
                e1->bside[x] = !e1->bside[x];
            if (e1->bundle[ABOVE][x])
                e0->bside[x] = !e0->bside[x];
        }

        // Swap the bundles in the table: e0 with its tails moves behind e1.
        edge_node *prev = e0->prev;
        edge_node *next = e1->next;
        if (next)
            next->prev = e0;
        if (e0->bstate[ABOVE] == BUNDLE_HEAD) {
            while (prev) {
                prev = prev->prev;
                if (!prev || prev->bstate[ABOVE] != BUNDLE_TAIL)
                    break;
            }
        }
        if (!prev) {
            aet->prev = e1;
            e1->next = aet;
            aet = e0->next;
        } else {
            prev->next->prev = e1;
            e1->next = prev->next;
            prev->next = e0->next;
        }
        e0->next->prev = prev;
        e1->next->prev = e1;
        e0->next = next;
    }
}

// Closing step: bounds continue with their next edge, and the values
// above this boundary become those below the next.
void Sweep::closingStep() {
    for (edge_node *edge = aet, *next = nullptr; edge; edge = next) {
        next = edge->next;
        edge_node *succ = edge->succ;
        edge_node *target = edge;
        if (edge->top.y == yt && succ) {
            target = succ;
            edge_node *prev = edge->prev;
            if (prev)
                prev->next = succ;
            else
                aet = succ;
            if (next)
                next->prev = succ;
            succ->prev = prev;
            succ->next = next;
        } else {
            edge->xb = edge->xt;
        }
        target->outp[BELOW] = edge->outp[ABOVE];
        target->bstate[BELOW] = edge->bstate[ABOVE];
        target->bundle[BELOW][CLIP] = edge->bundle[ABOVE][CLIP];
        target->bundle[BELOW][SUBJ] = edge->bundle[ABOVE][SUBJ];
        edge->outp[ABOVE] = nullptr;
    }
}

} // namespace

void gpc_free_polygon(gpc_polygon *p) {
    for (int c = 0; c < p->num_contours; ++c)
        std::free(p->contour[c].vertex);
    std::free(p->hole);
    std::free(p->contour);
    setEmpty(p);
}

void gpc_polygon_clip(gpc_op op, gpc_polygon *subject, gpc_polygon *clip, gpc_polygon *result) {
    // Phase 1: trivial results.
    if ((subject->num_contours == 0 && clip->num_contours == 0) ||
        (subject->num_contours == 0 && (op == GPC_INT || op == GPC_DIFF)) ||
        (clip->num_contours == 0 && op == GPC_INT)) {
        if (result == subject || result == clip)
            gpc_free_polygon(result); // an operand given as the result is replaced, not leaked
        setEmpty(result);
        return;
    }

    // Phase 2: contours that cannot meet.
    if ((op == GPC_INT || op == GPC_DIFF) && subject->num_contours > 0 && clip->num_contours > 0)
        markNonOverlapping(subject, clip, op);

    // Phase 3: the local minima table.
    LmtBuilder lmtBuilder;
    std::vector<double> heights;
    edge_node *subjectEdges = nullptr, *clipEdges = nullptr;
    if (subject->num_contours > 0)
        subjectEdges = buildEdges(lmtBuilder, heights, subject, SUBJ, op);
    if (clip->num_contours > 0)
        clipEdges = buildEdges(lmtBuilder, heights, clip, CLIP, op);
    lmt_node *lmt = lmtBuilder.link();

    auto freeTables = [&]() {
        while (lmt) {
            lmt_node *next = lmt->next;
            std::free(lmt);
            lmt = next;
        }
        std::free(subjectEdges);
        std::free(clipEdges);
    };
    if (!lmt) {
        freeTables();
        if (result == subject || result == clip)
            gpc_free_polygon(result);
        setEmpty(result);
        return;
    }

    // Phase 4: the scanbeam table, every distinct height in ascending order
    // (of equal heights the first registered stays).
    std::stable_sort(heights.begin(), heights.end());
    heights.erase(std::unique(heights.begin(), heights.end()), heights.end());
    if (result == subject || result == clip)
        gpc_free_polygon(result);

    // Phase 5: the sweep, scanbeam by scanbeam.
    Pools pools;
    Sweep sweep{op, pools, nullptr, nullptr, nullptr, {op == GPC_DIFF ? RIGHT : LEFT, LEFT}, lmt};
    size_t const beams = heights.size();
    size_t scanbeam = 0;
    while (scanbeam < beams) {
        sweep.yb = heights[scanbeam++];
        if (scanbeam < beams) {
            sweep.yt = heights[scanbeam];
            sweep.dy = sweep.yt - sweep.yb;
        }
        sweep.boundaryStep();
        sweep.endingStep();
        if (scanbeam >= beams)
            break;
        sweep.crossingStep();
        sweep.closingStep();
    }

    // Phase 6: the result.
    writeResult(sweep.out, result);
    freeTables();
}

} // namespace Vantrel
