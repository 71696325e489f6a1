// A drawing context that records the drawing calls a callout makes, one
// line each, and carries them out on a recording surface as well, so that
// flattening and measuring still work.
#pragma once

#include <vantrel/Vantrel.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace VantrelTest {

class LoggingContext : public Vantrel::CrossPlatformDrawingContext {
public:
    LoggingContext() : CrossPlatformDrawingContext(nullptr) {}

    // "fill colour a=0.8 n=1", "stroke w=3 dash n=1", "clip (x,y)-(x,y)", ...
    std::vector<std::string> calls;
    std::vector<Vantrel::Color> fillColours;

    void Fill(Vantrel::GradientPattern const &g, Vantrel::Polygons const &p) override {
        Scope scope(depth);
        log("fill gradient n=", p.polygons.size());
        CrossPlatformDrawingContext::Fill(g, p);
    }
    void Fill(Vantrel::GradientPattern const &g, Vantrel::Polygon const &p) override {
        Scope scope(depth);
        log("fill gradient n=", 1);
        CrossPlatformDrawingContext::Fill(g, p);
    }
    void Fill(Vantrel::Color const &c, Vantrel::Polygons const &p) override {
        Scope scope(depth);
        if (depth == 1)
            fillColours.push_back(c);
        log("fill colour n=", p.polygons.size());
        CrossPlatformDrawingContext::Fill(c, p);
    }
    void Fill(Vantrel::Color const &c, Vantrel::Polygon const &p) override {
        Scope scope(depth);
        if (depth == 1)
            fillColours.push_back(c);
        log("fill colour n=", 1);
        CrossPlatformDrawingContext::Fill(c, p);
    }
    void Stroke(Vantrel::Color const &c, double w, std::string const &style, Vantrel::Polygons const &p) override {
        Scope scope(depth);
        log("stroke " + style + " n=", p.polygons.size());
        CrossPlatformDrawingContext::Stroke(c, w, style, p);
    }
    void Stroke(Vantrel::Color const &c, double w, std::string const &style, Vantrel::Polygon const &p) override {
        Scope scope(depth);
        log("stroke " + style + " n=", 1);
        CrossPlatformDrawingContext::Stroke(c, w, style, p);
    }
    void FillEllipse(Vantrel::GradientPattern const &g, Vantrel::Rect const &r) override {
        Scope scope(depth);
        log("fill ellipse gradient", -1);
        CrossPlatformDrawingContext::FillEllipse(g, r);
    }
    void FillEllipse(Vantrel::Color const &c, Vantrel::Rect const &r) override {
        Scope scope(depth);
        if (depth == 1)
            fillColours.push_back(c);
        log("fill ellipse", -1);
        CrossPlatformDrawingContext::FillEllipse(c, r);
    }
    void StrokeEllipse(Vantrel::Color const &c, double w, std::string const &style, Vantrel::Rect const &r) override {
        Scope scope(depth);
        log("stroke ellipse", -1);
        CrossPlatformDrawingContext::StrokeEllipse(c, w, style, r);
    }
    void FillPath(Vantrel::GradientPattern const &g, Vantrel::Path const &p) override {
        Scope scope(depth);
        log("fill path gradient", -1);
        CrossPlatformDrawingContext::FillPath(g, p);
    }
    void FillPath(Vantrel::Color const &c, Vantrel::Path const &p) override {
        Scope scope(depth);
        if (depth == 1)
            fillColours.push_back(c);
        log("fill path", -1);
        CrossPlatformDrawingContext::FillPath(c, p);
    }
    void StrokePath(Vantrel::Color const &c, double w, std::string const &style, Vantrel::Path const &p,
                    Vantrel::LineCapTypes cap, Vantrel::LineJoinTypes join, bool close) override {
        Scope scope(depth);
        log("stroke path", -1);
        CrossPlatformDrawingContext::StrokePath(c, w, style, p, cap, join, close);
    }
    void SetClip(Vantrel::Rect const &r) override {
        std::ostringstream s;
        s << "clip " << r;
        calls.push_back(s.str());
        CrossPlatformDrawingContext::SetClip(r);
    }
    void DrawTextW(Vantrel::TextCalloutProperties const &, Vantrel::TextAttributeList const &,
                   Vantrel::DrawOutputMetaData *) override {
        calls.push_back("text");
    }

private:
    // Logs the outermost call only: the context's overloads call each other.
    struct Scope {
        explicit Scope(int &d) : depth(d) { ++depth; }
        ~Scope() { --depth; }
        int &depth;
    };
    void log(std::string const &what, long count) {
        if (depth == 1)
            calls.push_back(count < 0 ? what : what + std::to_string(count));
    }
    int depth = 0;
};

// Counts Save and Restore, and throws from every fill in a plain colour, as
// an allocation failure would: for checking that drawing code that saves the
// context restores it on the way out.
class ThrowingContext : public LoggingContext {
public:
    int saves = 0, restores = 0;
    void Save() override {
        ++saves;
        LoggingContext::Save();
    }
    void Restore() override {
        ++restores;
        LoggingContext::Restore();
    }
    using LoggingContext::Fill;
    using LoggingContext::FillEllipse;
    using LoggingContext::FillPath;
    void Fill(Vantrel::Color const &, Vantrel::Polygons const &) override { fail(); }
    void FillEllipse(Vantrel::Color const &, Vantrel::Rect const &) override { fail(); }
    void FillPath(Vantrel::Color const &, Vantrel::Path const &) override { fail(); }

private:
    static void fail() { throw std::runtime_error("out of memory"); }
};

} // namespace VantrelTest
