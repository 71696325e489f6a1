// vantrel: renders the library's callouts to PNG files.
#include "Draw.h"
#include "Edit.h"
#include "Gallery.h"
#include "PresetsTable.h"
#include "Sketch.h"
#include "Sprites.h"

#include <vantrel/text/PangoFonts.h>

#include <algorithm>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

namespace {

char const *const kUsage = R"(usage: vantrel COMMAND [OPTIONS]

Renders Vantrel callouts to PNG images.

Commands:
  gallery -o FILE.png   draw every callout the library has, on a checkerboard
                        so that transparency shows, and write it to FILE.png
  draw KIND ...         draw one callout to a PNG; 'vantrel draw --help' lists
                        every kind, theme and option
  edit                  replay caret moves, clicks and selections on a text
                        callout and draw the result; 'vantrel edit --help'
                        lists the operations
  sprites               cut a text into a sprite sheet of its clusters and write
                        the sheet and its layout; 'vantrel sprites --help'
  sketch [DRAWING.svg]  reveal an SVG drawing as a pen would write it, at a
                        progress or as frames; 'vantrel sketch --help'
  presets               print the class each Presets function makes in each
                        theme, or null
  help                  show this text

Options:
  -h, --help            show this text
  --fallback-fonts      before drawing text, search the font folders for the
                        library's fallback families (Windows and macOS fonts,
                        "Arial", "Yu Gothic" and others) and warn about each
                        one missing; off by default, since fontconfig already
                        falls back to the fonts installed here
)";

int usageError(std::string const &message) {
    std::cerr << "vantrel: " << message << " (see 'vantrel --help')\n";
    return 2;
}

int runGallery(std::vector<std::string> const &args) {
    std::string output;
    for (size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "-h" || args[i] == "--help") {
            std::cout << "usage: vantrel gallery -o FILE.png\n";
            return 0;
        }
        if (args[i] == "-o" || args[i] == "--output") {
            if (i + 1 >= args.size())
                return usageError("option " + args[i] + " needs a file name");
            output = args[++i];
        } else {
            return usageError("unknown option '" + args[i] + "' for gallery");
        }
    }
    if (output.empty())
        return usageError("gallery needs -o FILE.png");
    if (!VantrelTool::writeGallery(output)) {
        std::cerr << "vantrel: could not write '" << output << "'\n";
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    // The fallback families are Windows and macOS fonts; on Linux pango's
    // fontconfig fallback already covers their scripts, and searching for them
    // only greets every run with six warnings. Given anywhere, the option
    // restores the library's own default.
    auto fallback = std::find(args.begin(), args.end(), "--fallback-fonts");
    Vantrel::PangoFonts::setLoadFallbackFonts(fallback != args.end());
    if (fallback != args.end())
        args.erase(fallback);
    if (args.empty())
        return usageError("missing command");
    std::string command = args.front();
    args.erase(args.begin());
    if (command == "-h" || command == "--help" || command == "help") {
        std::cout << kUsage << '\n'
                  << VantrelTool::drawUsage() << '\n'
                  << VantrelTool::editUsage() << '\n'
                  << VantrelTool::spritesUsage() << '\n'
                  << VantrelTool::sketchUsage();
        return 0;
    }
    if (command == "draw")
        return VantrelTool::runDraw(args);
    if (command == "gallery")
        return runGallery(args);
    if (command == "edit")
        return VantrelTool::runEdit(args);
    if (command == "sprites")
        return VantrelTool::runSprites(args);
    if (command == "sketch")
        return VantrelTool::runSketch(args);
    if (command == "presets")
        return VantrelTool::runPresets(args);
    return usageError("unknown command '" + command + "'");
}
