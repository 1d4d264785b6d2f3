#include "markup.h"

#include "core/text.h"
#include "expectation.h"

namespace orvanta::readers {

namespace {

const std::map<std::string, std::string, std::less<>> entities{
    {"amp", "&"},    {"lt", "<"},     {"gt", ">"},     {"quot", "\""},  {"apos", "'"},
    {"nbsp", " "},   {"euro", "€"},   {"ldquo", "“"},  {"rdquo", "”"},  {"rsquo", "’"},
    {"mdash", "—"},  {"frac12", "½"}, {"Eacute", "É"}, {"ccedil", "ç"}, {"eacute", "é"},
    {"egrave", "è"}, {"ntilde", "ñ"}, {"oslash", "ø"}, {"ouml", "ö"},   {"uuml", "ü"}};

std::string resolved(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto end = text.front() == '&' ? text.find(';') : std::string_view::npos;
        if (end == std::string_view::npos) {
            result += text.front();
            text.remove_prefix(1);
            continue;
        }
        const auto found = entities.find(text.substr(1, end - 1));
        if (found == entities.end())
            throw Mismatch{"an unknown entity: " + std::string(text.substr(0, end + 1))};
        result += found->second;
        text.remove_prefix(end + 1);
    }
    return result;
}

/// The tag without its brackets, and the markup behind it.
std::string_view takeTag(std::string_view& markup) {
    const bool isComment = markup.starts_with("<!--");
    const std::string_view close = isComment ? "-->" : ">";
    const auto end = markup.find(close);
    if (end == std::string_view::npos) throw Mismatch{"a tag without its end"};
    const std::string_view tag = markup.substr(1, end - 1);
    markup.remove_prefix(end + close.size());
    return tag;
}

std::string_view takeText(std::string_view& markup) {
    const std::string_view text = markup.substr(0, markup.find('<'));
    markup.remove_prefix(text.size());
    return text;
}

Node elementFrom(std::string_view tag) {
    Node node;
    const auto nameEnd = tag.find_first_of(" \n/");
    node.name = tag.substr(0, nameEnd);
    while (true) {
        const auto open = tag.find("=\"");
        if (open == std::string_view::npos) return node;
        const auto start = tag.find_last_of(" \n", open) + 1;
        const auto close = tag.find('"', open + 2);
        node.attributes[std::string(tag.substr(start, open - start))] =
            resolved(tag.substr(open + 2, close - open - 2));
        tag.remove_prefix(close + 1);
    }
}

void fill(Node& parent, std::string_view& markup) {
    while (!markup.empty()) {
        if (markup.front() != '<') {
            Node text;
            text.text = resolved(takeText(markup));
            parent.children.push_back(std::move(text));
            continue;
        }
        const std::string_view tag = takeTag(markup);
        if (tag.starts_with('!') || tag.starts_with('?')) continue;
        if (tag.starts_with('/')) return;
        parent.children.push_back(elementFrom(tag));
        if (!tag.ends_with('/')) fill(parent.children.back(), markup);
    }
}

}  // namespace

std::string Node::attribute(const std::string& wanted) const {
    const auto found = attributes.find(wanted);
    return found == attributes.end() ? std::string() : found->second;
}

std::vector<const Node*> Node::all(std::string_view wanted) const {
    std::vector<const Node*> found;
    for (const Node& child : children)
        if (child.name == wanted) found.push_back(&child);
    return found;
}

std::vector<const Node*> Node::within(std::string_view wanted) const {
    std::vector<const Node*> found;
    for (const Node& child : children) {
        if (child.name == wanted) {
            found.push_back(&child);
            continue;
        }
        const auto deeper = child.within(wanted);
        found.insert(found.end(), deeper.begin(), deeper.end());
    }
    return found;
}

std::string Node::allText() const {
    std::string all = text;
    for (const Node& child : children) all += child.allText();
    return name.empty() ? all : all + "\n";
}

Node xmlFrom(std::string_view markup) {
    Node root;
    fill(root, markup);
    return root;
}

std::string textOfHtml(std::string_view markup) {
    std::string text;
    bool inHead = false;
    while (!markup.empty()) {
        if (markup.front() != '<') {
            const std::string_view more = takeText(markup);
            if (!inHead) text += resolved(more);
            continue;
        }
        const std::string_view tag = takeTag(markup);
        if (tag == "head") inHead = true;
        if (tag == "/head") inHead = false;
    }
    return text;
}

}  // namespace orvanta::readers
