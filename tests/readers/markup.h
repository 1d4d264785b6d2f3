#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::readers {

/// An element of XML, or a text, which has no name.
struct Node {
    std::string name;
    std::map<std::string, std::string> attributes;
    std::string text;
    std::vector<Node> children;

    /// Empty if there is none.
    std::string attribute(const std::string& name) const;
    /// The children of this name.
    std::vector<const Node*> all(std::string_view name) const;
    /// All of this name within, in order; not those within another one of them.
    std::vector<const Node*> within(std::string_view name) const;
    /// The text inside, each element's end a line's end.
    std::string allText() const;
};

/// The nameless root of well-formed XML.
Node xmlFrom(std::string_view markup);

/// What HTML shows: its text without head, comments and tags, entities resolved.
std::string textOfHtml(std::string_view markup);

}  // namespace orvanta::readers
