#include <vantrel/Vantrel.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <sstream>

using namespace Vantrel;

TEST(Point, ArithmeticAndProducts) {
    Point a(3, 4), b(-1, 2);
    EXPECT_DOUBLE_EQ(a * b, 5.0);  // dot
    EXPECT_DOUBLE_EQ(a ^ b, 10.0); // cross
    EXPECT_EQ(a.Perpendicular(), Point(-4, 3));
    EXPECT_TRUE(std::signbit((-Point(0, 0)).x));
    // Division multiplies by the reciprocal.
    EXPECT_EQ((Point(1, 0) / 3.0).x, 1.0 * (1.0 / 3.0));
    EXPECT_FALSE(std::isfinite(Point(0, 0).Normalized().x));
}

TEST(Point, RoundingHalvesAwayFromZeroAndSaturates) {
    EXPECT_EQ(Point(-0.5, 2.5).ToPointInt(), PointInt(-1, 3));
    EXPECT_EQ(Point(1e300, -1e300).ToPointInt(), PointInt(INT_MAX, INT_MIN));
    EXPECT_EQ(Point(std::nan(""), 1).ToPointInt(), PointInt(0, 1));
}

TEST(Rect, ContainsExcludesRightAndBottomEdges) {
    Rect r(0, 0, 10, 10);
    EXPECT_TRUE(r.Contains(Point(0, 0)));
    EXPECT_FALSE(r.Contains(Point(10, 5)));
    EXPECT_FALSE(r.Contains(Point(5, 10)));
    EXPECT_TRUE(r.Contains(Point(9.999, 9.999)));
}

TEST(Rect, ConversionsToInts) {
    Rect r(0.4, 0.6, 1.2, 1.5);
    EXPECT_EQ(r.ToContainingRectInt(), RectInt(0, 0, 2, 2));
    EXPECT_EQ(r.ToRectIntRound(), RectInt(0, 1, 1, 2));
    EXPECT_EQ(Rect(-0.5, 2.5, -1.5, -2.5).ToRectIntRound(), RectInt(-1, 3, -2, -3));
    EXPECT_EQ(Rect(-0.2, -1.7, 0.1, 3).ToContainingRectInt(), RectInt(-1, -2, 1, 3));
    EXPECT_EQ(Rect(0, 0, 2.9, -0.1).IntWidth(), 2);
    EXPECT_EQ(Rect(0, 0, 2.9, -0.1).IntHeight(), -1);
    Rect huge(-1e20, std::nan(""), 1e20, std::numeric_limits<double>::infinity());
    EXPECT_EQ(huge.ToContainingRectInt(), RectInt(INT_MIN, 0, INT_MAX, INT_MAX));
}

TEST(Rect, GeometryHelpers) {
    Rect r(10, 20, 30, 60);
    EXPECT_EQ(r.PointAtFraction(0.5, 0.25), Point(20, 30));
    EXPECT_EQ(r.Scaled(Point(2, -1)), Rect(20, -20, 60, -60));
    EXPECT_EQ(Rect(5, 9, 1, 2).Normalized(), Rect(1, 2, 5, 9));
    EXPECT_EQ(Rect(5, 2, 1, 9).Normalized(), Rect(1, 2, 5, 9));
    EXPECT_EQ(Rect(5, 2, 1, 9).Width(), -4);
}

TEST(Rect, UnionAndBoundingRectHaveNoEmptyRect) {
    EXPECT_EQ(Rect().UnionRect(Rect(10, 10, 20, 20)), Rect(0, 0, 20, 20));
    EXPECT_EQ(Rect(-5, -6, -1, -2).UnionRect(Rect(-10, -3, -4, -1)), Rect(-10, -6, -1, -1));
    Polygon negative({Point(-3, -4), Point(-1, -9), Point(-7, -2)});
    EXPECT_EQ(negative.BoundingRect(), Rect(-7, -9, -1, -2));
    Rect empty = Rect::BoundingRectOfPoints({});
    EXPECT_EQ(empty.Left(), 1.7976931348623157e308);
    EXPECT_EQ(empty.Bottom(), -1.7976931348623157e308);
}

TEST(RectInt, IntersectionAndUnion) {
    RectInt a(0, 0, 10, 10);
    EXPECT_EQ(a.IntersectionRect(RectInt(5, 5, 20, 20)), RectInt(5, 5, 10, 10));
    EXPECT_EQ(a.IntersectionRect(RectInt(10, 0, 20, 10)), RectInt()); // touching edge
    EXPECT_EQ(a.IntersectionRect(RectInt(20, 20, 30, 30)), RectInt());
    // Edges far apart must not wrap into a positive size.
    EXPECT_EQ(RectInt(INT_MIN, 0, INT_MIN + 1, 1).IntersectionRect(RectInt(INT_MAX - 1, 0, INT_MAX, 1)), RectInt());
    EXPECT_EQ(a.UnionRect(RectInt(-5, 3, 2, 20)), RectInt(-5, 0, 10, 20));
    EXPECT_EQ(a.UnionRect(RectInt(100, 100, 100, 200)), a); // degenerate argument ignored
    EXPECT_EQ(RectInt(50, 50, 60, 50).UnionRect(a), a);     // degenerate self ignored
}

TEST(Range, OffsetsAndIntersections) {
    EXPECT_EQ(Range(), Range(-1, -1));
    EXPECT_EQ(Range().length(), 0);
    EXPECT_EQ(Range(5, 2).normalized(), Range(2, 5));
    EXPECT_EQ(Range(5, 2).length(), -3);
    EXPECT_EQ(Range(0, 5).intersection(Range(5, 9)), Range(5, 5));
    EXPECT_EQ(Range(0, 4).intersection(Range(5, 9)), Range(0, 0));
    EXPECT_EQ(Range(2, 8).intersection(Range(4, 6)), Range(4, 6));
    EXPECT_EQ(Range(INT_MIN, INT_MAX).length(), -1); // wraps, does not trap
    Range r;
    r.setStart(3);
    r.setEnd(7);
    std::ostringstream os;
    os << r << Point(1.5, 2) << Rect(0, 0, 10, 20);
    EXPECT_EQ(os.str(), "(3,7)(1.5,2)((0,0),(10,20))");
}

namespace {
void expectNear(Point a, Point b) {
    EXPECT_NEAR(a.x, b.x, 1e-9);
    EXPECT_NEAR(a.y, b.y, 1e-9);
}
} // namespace

TEST(Matrix3x3, ProductsAndInverse) {
    Matrix3x3 m = Matrix3x3::Translation(Point(5, -2)) * Matrix3x3::Scale(2, 3);
    expectNear(m * Point(1, 1), Point(7, 1));
    Matrix3x3 general(2, 1, 4, -1, 3, 2, 0.5, 0.25, 3);
    Matrix3x3 id = general * general.Inverse();
    double const expected[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    double const got[9] = {id.m00, id.m01, id.m02, id.m10, id.m11, id.m12, id.m20, id.m21, id.m22};
    for (int i = 0; i < 9; ++i)
        EXPECT_NEAR(got[i], expected[i], 1e-12) << i;
    // The third row takes no part in transforming a point.
    expectNear(general * Point(1, 2), Point(8, 7));
    EXPECT_FALSE(std::isfinite(Matrix3x3::Scale(0, 1).Inverse().m00));
}

TEST(Matrix3x3, SegmentMappingRotatesAndScalesUniformly) {
    Point a1(1, 1), a2(3, 1), b1(10, 10), b2(10, 14);
    Matrix3x3 m = Matrix3x3::SegmentMapping(a1, b1, a2, b2);
    expectNear(m * a1, b1);
    expectNear(m * a2, b2);
    // A point off the segment stays on the same side: no mirror.
    Point off = m * Point(2, 2);
    EXPECT_GT(((b2 - b1) ^ (off - b1)) * ((a2 - a1) ^ (Point(2, 2) - a1)), 0);
    EXPECT_FALSE(std::isfinite(Matrix3x3::SegmentMapping(a1, b1, a1, b2).m00));
}

TEST(Polygon, OrientationAndTransforms) {
    Polygon p(Rect(0, 0, 2, 1));
    EXPECT_EQ(p.points, (std::vector<Point>{Point(0, 0), Point(2, 0), Point(2, 1), Point(0, 1)}));
    EXPECT_GT(p.SignedArea(), 0);
    EXPECT_EQ(p.Reversed().PositivelyOriented().points, p.points);
    Polygon flat({Point(0, 0), Point(1, 1), Point(2, 2)});
    EXPECT_EQ(flat.PositivelyOriented().points, flat.points);

    Polygons list;
    list.Add(p);
    list.Add(Polygon());
    Polygons moved = Matrix3x3::Translation(Point(1, 0)) * list;
    ASSERT_EQ(moved.polygons.size(), 2u);
    EXPECT_EQ(moved.polygons[0]->points[0], Point(1, 0));
    EXPECT_TRUE(moved.polygons[1]->points.empty());
    // Copies share their polygons.
    Polygons copy = list;
    copy.polygons[0]->points[0] = Point(9, 9);
    EXPECT_EQ(list.polygons[0]->points[0], Point(9, 9));
}
