#include "reports/document_model.h"

#include <cassert>
#include <numeric>

#include "core/text.h"
#include "view/failure.h"

namespace orvanta {

namespace {

/// An empty cell with the looks of another one.
std::shared_ptr<DocumentCell> emptyLike(const DocumentCell& cell) {
    const DocumentParagraph& like = cell.story.lastParagraph();
    auto fresh = std::make_shared<DocumentCell>(CellLook(cell));
    DocumentParagraph& paragraph = fresh->story.lastParagraph();
    paragraph.format = like.format;
    paragraph.mark = like.mark;
    paragraph.mark.bold = paragraph.mark.italic = false;
    return fresh;
}

void insertRun(DocumentParagraph& paragraph, std::size_t offset, std::string_view text) {
    if (text.empty()) return;
    const std::size_t run = splitRunAt(paragraph, offset);
    paragraph.runs.insert(paragraph.runs.begin() + static_cast<std::ptrdiff_t>(run),
                          TextRun{std::string(text), paragraph.mark});
}

DocumentParagraph& paragraphAt(Story& story, std::size_t block) {
    auto* paragraph = std::get_if<DocumentParagraph>(&story.blocks[block]);
    if (!paragraph) throw Failure(ErrorNumber::InvalidCall);
    return *paragraph;
}

/// Ends the paragraph at an offset; what stood behind it becomes the next one.
void splitParagraph(Story& story, StoryPlace at) {
    DocumentParagraph& paragraph = paragraphAt(story, at.block);
    const auto run = static_cast<std::ptrdiff_t>(splitRunAt(paragraph, at.offset));
    DocumentParagraph rest = paragraph;
    rest.runs.erase(rest.runs.begin(), rest.runs.begin() + run);
    paragraph.runs.erase(paragraph.runs.begin() + run, paragraph.runs.end());
    story.blocks.insert(story.blocks.begin() + static_cast<std::ptrdiff_t>(at.block) + 1, rest);
}

}  // namespace

std::size_t DocumentParagraph::length() const {
    return std::accumulate(
        runs.begin(), runs.end(), std::size_t{0},
        [](std::size_t sum, const TextRun& run) { return sum + run.text.size(); });
}

void DocumentTable::addRow() {
    assert(!rows.empty());
    DocumentRow fresh;
    fresh.height = rows.back().height;
    for (const auto& cell : rows.back().cells) fresh.cells.push_back(emptyLike(*cell));
    rows.push_back(std::move(fresh));
}

StoryPlace endOf(const Story& story) {
    return {story.blocks.size() - 1, std::get<DocumentParagraph>(story.blocks.back()).length()};
}

StoryPlace insertText(Story& story, StoryPlace at, std::string_view text) {
    assert(at.block < story.blocks.size());
    bool first = true;
    for (const std::string_view line : splitAt(text, "\r\n")) {
        if (!first) {
            splitParagraph(story, at);
            at = {at.block + 1, 0};
        }
        first = false;
        insertRun(paragraphAt(story, at.block), at.offset, line);
        at.offset += line.size();
    }
    return at;
}

std::size_t splitRunAt(DocumentParagraph& paragraph, std::size_t offset) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < paragraph.runs.size(); ++i) {
        if (offset == start) return i;
        const std::size_t end = start + paragraph.runs[i].text.size();
        if (offset < end) {
            TextRun rest = paragraph.runs[i];
            rest.text.erase(0, offset - start);
            paragraph.runs[i].text.resize(offset - start);
            paragraph.runs.insert(paragraph.runs.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                                  rest);
            return i + 1;
        }
        start = end;
    }
    return paragraph.runs.size();
}

}  // namespace orvanta
