#include "CaptionDraw.h"

#include "Arguments.h"
#include "Picture.h"

#include <cairo.h>
#include <iostream>
#include <memory>

using namespace Vantrel;

namespace VantrelTool {

namespace {

// Prints each call on a line of its own.
struct PrintingExport : ICaptionExportObserver {
    void exportText(int position, std::string const &text) override {
        std::cout << "exportText " << position << " \"" << text << "\"\n";
    }
    void exportLineBreak(int position, bool hard) override {
        std::cout << "exportLineBreak " << position << (hard ? " hard\n" : " soft\n");
    }
    void exportBold(int position, bool bold) override {
        std::cout << "exportBold " << position << (bold ? " on\n" : " off\n");
    }
    void exportItalic(int position, bool italic) override {
        std::cout << "exportItalic " << position << (italic ? " on\n" : " off\n");
    }
};

std::string joined(std::vector<int> const &values) {
    std::string out;
    for (int v : values)
        out += (out.empty() ? "" : " ") + std::to_string(v);
    return out;
}

} // namespace

CaptionProperties captionProperties(Settings const &s, CaptionRequest const &c) {
    CaptionProperties p;
    p.text = s.text;
    p.rect = s.box;
    p.alignment = s.align;
    p.centered = c.centered;
    p.maxLines = c.maxLines;
    p.fontName = s.font;
    p.fontSize = int(s.fontSize);
    p.textColor = s.color;
    p.backgroundColor = c.background;
    p.outlineColor = c.outline;
    p.outlineWidth = c.outlineWidth;
    return p;
}

int writeCaption(Settings const &settings, CaptionRequest const &request, double pictureMargin,
                 std::string const &path) {
    CaptionProperties const properties = captionProperties(settings, request);
    std::shared_ptr<Caption> caption = std::make_shared<Caption>(properties, TextAttributeList(), request.margin);
    if (request.infinite)
        caption = caption->MakeInfiniteHeightCaption();
    std::cout << "wrap indexes (bytes): " << joined(caption->GetWordWrapUTF8Indexes()) << "\n"
              << "wrap indexes (characters): " << joined(caption->GetWordWrapCharacterIndexes()) << "\n"
              << "split: " << caption->SplitUTF8Index() << " (character " << caption->SplitCharacterIndex() << ")\n";
    if (request.exportCalls) {
        PrintingExport printer;
        Caption::ExportText(printer, properties.text, TextAttributeList(), caption->GetWordWrapUTF8Indexes());
    }
    auto picture = pictureOver(properties.rect.Expanded(pictureMargin), "the caption's rect");
    caption->DrawIntoContext(picture.get());
    return writePng(*picture, path);
}

} // namespace VantrelTool
