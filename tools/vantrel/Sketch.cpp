#include "Sketch.h"

#include "Arguments.h"
#include "Picture.h"

#include <vantrel/Vantrel.h>

#include <boost/property_tree/ptree.hpp>

#include <fstream>
#include <iostream>
#include <sstream>

using namespace Vantrel;

namespace VantrelTool {

char const *const kSampleDrawing = R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 180 100">
  <path d="M20 95 V55 L55 25 L90 55 V95 Z M45 95 v-25 h20 v25"/>
  <path d="M110 45 C108 28 128 20 138 30 S165 25 162 42 Q172 60 150 60 q-30 6 -38 -12 Z"/>
</svg>
)";

namespace {

struct SketchRequest {
    Settings settings; // the pen's colour
    std::string input, output;
    double progress = 1.0, pen = 3.0;
    Point size = Point(512, 512);
    int frames = 0;
    bool flipX = false, flipY = false, info = false;
};

SketchRequest parse(std::vector<std::string> args) {
    SketchRequest r;
    r.settings.color = Color(0.1f, 0.1f, 0.1f);
    if (!args.empty() && (args.front().empty() || args.front()[0] != '-')) {
        r.input = args.front();
        args.erase(args.begin());
    }
    readOptions(args, "sketch", r.settings, {"--flip-x", "--flip-y", "--info"},
                [&](std::string const &a, std::string const &v) {
                    if (a == "-o" || a == "--output")
                        r.output = v;
                    else if (a == "--progress")
                        r.progress = numbers(a, v, 1)[0];
                    else if (a == "--pen")
                        r.pen = numbers(a, v, 1)[0];
                    else if (a == "--size") {
                        std::vector<double> const size = numbers(a, v, 2);
                        r.size = Point(size[0], size[1]);
                    } else if (a == "--frames")
                        r.frames = frameCount(a, v);
                    else if (a == "--flip-x")
                        r.flipX = true;
                    else if (a == "--flip-y")
                        r.flipY = true;
                    else if (a == "--info")
                        r.info = true;
                    else
                        return false;
                    return true;
                });
    if (r.output.empty() && !r.info)
        throw UsageError("sketch needs -o FILE.png or --info");
    return r;
}

void printInfo(SketchMotionCallout const &sketch) {
    std::cout << "totalPathLength: " << sketch.totalPathLength() << "\nbounds: " << sketch.pictureBounds() << '\n';
    for (int i = 0; i < sketch.pathCount(); ++i)
        std::cout << "path " << i + 1 << ": " << sketch.commandCount(i) << " commands\n";
}

int writeFrame(SketchMotionCallout &sketch, SketchRequest const &r, double progress, std::string const &path) {
    Rect const rect(Point(0, 0), r.size);
    auto picture = pictureOver(rect, "--size");
    sketch.drawProgressIntoContext(picture.get(), progress, r.settings.color, r.pen, rect);
    return writePng(*picture, path);
}

} // namespace

std::string sketchUsage() {
    return "usage: vantrel sketch [DRAWING.svg] [OPTIONS] -o FILE.png\n\n"
           "Reveals the path data of an SVG drawing as a pen would write it, fitted to the\n"
           "picture. Without a file, draws the gallery's sample drawing.\n\n"
           "Options:\n"
           "  --progress P              how far the pen has come, 0 to 1 (default 1)\n"
           "  --color COLOR             the pen's colour, #RRGGBB or #RRGGBBAA\n"
           "  --pen W                   the pen's width in pixels (default 3)\n"
           "  --size W,H                the picture's size (default 512,512)\n"
           "  --frames N                N pictures of the reveal from 0 to 1, the output naming\n"
           "                            each by a pattern such as frame-%03d.png\n"
           "  --flip-x, --flip-y        mirror the drawing\n"
           "  --info                    print the drawing's length, bounds and commands per path\n"
           "  -o, --output FILE.png     where to write the picture\n";
}

int runSketch(std::vector<std::string> const &args) {
    for (std::string const &a : args)
        if (a == "-h" || a == "--help") {
            std::cout << sketchUsage();
            return 0;
        }
    try {
        SketchRequest r = parse(args);
        std::string text = kSampleDrawing;
        if (!r.input.empty()) {
            std::ifstream in(r.input, std::ios::binary);
            std::ostringstream content;
            content << in.rdbuf();
            if (!in) {
                std::cerr << "vantrel: could not read '" << r.input << "'\n";
                return 1;
            }
            text = content.str();
        }
        std::unique_ptr<SketchMotionCallout> sketch;
        try {
            sketch = std::make_unique<SketchMotionCallout>(text);
        } catch (std::exception const &e) {
            // The reader's failures: std::runtime_error and boost::property_tree's errors.
            std::string message = e.what();
            for (char &c : message)
                if (c == '\n' || c == '\r')
                    c = ' ';
            std::cerr << "vantrel: " << (r.input.empty() ? "the sample" : r.input) << ": " << message << '\n';
            return 1;
        }
        sketch->flipX = r.flipX;
        sketch->flipY = r.flipY;
        if (r.info)
            printInfo(*sketch);
        if (r.output.empty())
            return 0;
        if (r.frames == 0)
            return writeFrame(*sketch, r, r.progress, r.output);
        return writeFrames(r.output, r.frames, [&](double progress, std::string const &path) {
            return writeFrame(*sketch, r, progress, path);
        });
    } catch (UsageError const &e) {
        std::cerr << "vantrel: " << e.what() << " (see 'vantrel sketch --help')\n";
        return 2;
    }
}

} // namespace VantrelTool
