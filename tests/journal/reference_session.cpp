#include "reference_session.h"

#include <algorithm>

namespace orvanta::test {

namespace {

const std::string delimiter = "<<!~!>>";
constexpr std::size_t stackDepth = 11;

std::vector<std::string> parts(const std::string& text, const std::string& separator) {
    std::vector<std::string> result;
    std::size_t start = 0, at;
    while ((at = text.find(separator, start)) != std::string::npos) {
        result.push_back(text.substr(start, at - start));
        start = at + separator.size();
    }
    result.push_back(text.substr(start));
    return result;
}

std::string trimmed(std::string text) {
    while (!text.empty() && text.back() == ' ') text.pop_back();
    while (!text.empty() && text.front() == ' ') text.erase(0, 1);
    return text;
}

int imageFor(char kind) { return static_cast<int>(std::string("SWOT").find(kind)) + 1; }

bool isPicked(char kind) { return kind == 'S' || kind == 'W'; }

bool isThere(const ReferenceRows& rows, int position) {
    return position >= 1 && position <= static_cast<int>(rows.size());
}

bool insertRow(ReferenceRows& rows, int position, const ReferenceRow& row) {
    const auto sameKey = [&](const ReferenceRow& other) { return other.key == row.key; };
    if (position < 1 || position > static_cast<int>(rows.size()) + 1) return false;
    if (!row.key.empty() && std::ranges::any_of(rows, sameKey)) return false;
    rows.insert(rows.begin() + position - 1, row);
    return true;
}

void removeRow(ReferenceRows& rows, int position) {
    if (isThere(rows, position)) rows.erase(rows.begin() + position - 1);
}

bool isMappedFrom(const ReferenceRow& row, const std::string& child) {
    const auto ends = parts(row.key, "-");
    return ends.size() == 2 && ends[1] == child;
}

bool anyKeyHolds(const ReferenceRows& rows, const std::string& text) {
    return std::ranges::any_of(
        rows, [&](const ReferenceRow& row) { return row.key.find(text) != std::string::npos; });
}

ReferenceRow plainRow(const std::string& key, const std::string& text, int image) {
    return {key, text, image, image, "", ""};
}

void pushOnto(std::vector<std::string>& stack, const std::vector<std::string>& fields) {
    std::string text = fields[0];
    for (std::size_t i = 1; i < fields.size(); ++i) text += delimiter + fields[i];
    stack.push_back(text);
    if (stack.size() > stackDepth) stack.erase(stack.begin());
}

std::string tagOf(const std::string& operation, char module, char kind) {
    return operation + "_" + module + "_" + kind;
}

}  // namespace

std::string ReferenceSession::mainList(char module, char kind) {
    const std::map<char, std::string> words{
        {'S', "Strength"}, {'W', "Weakness"}, {'O', "Opportunity"}, {'T', "Threat"}};
    return std::string("lv") + module + words.at(kind);
}

std::string ReferenceSession::pickingList(char side, char kind) {
    return std::string(kind == 'S' ? "lvStrength" : "lvWeakness") + (side == 'O' ? "Op" : "Th");
}

void ReferenceSession::recordChange(const Fields& fields) {
    pushOnto(undoStack, fields);
    redoStack.clear();
}

void ReferenceSession::setMappedTexts(const std::string& child, const std::string& text) {
    for (const char* list : {"lvOpportunity", "lvThreat"})
        for (ReferenceRow& row : lists[list])
            if (isMappedFrom(row, child)) row.text = text;
}

void ReferenceSession::add(char module, char kind, const std::string& typed) {
    const std::string text = trimmed(typed);
    if (text.empty()) return;
    const std::string key = kind + std::to_string(++lastNumbers[kind]);
    const ReferenceRow row = plainRow(key, text, imageFor(kind));
    ReferenceRows& main = lists[mainList(module, kind)];
    main.push_back(row);
    if (module == 'A' && isPicked(kind))
        for (const char side : {'O', 'T'}) lists[pickingList(side, kind)].push_back(row);
    if (module == 'A' && !isPicked(kind)) lists[mappingList(kind)].push_back(row);
    recordChange({tagOf("DEL", module, kind), std::to_string(main.size()), key, text, ""});
}

void ReferenceSession::edit(char module, char kind, int position, const std::string& typed) {
    ReferenceRows& main = lists[mainList(module, kind)];
    ReferenceRow& row = main[static_cast<std::size_t>(position) - 1];
    const std::string former = row.text;
    if (!trimmed(typed).empty()) row.text = typed;  // a blank text is refused
    if (row.text != former)
        recordChange({tagOf("EDIT", module, kind), std::to_string(position),
                      module == 'B' ? "" : row.key, former, ""});
    if (module == 'B') return;
    if (isPicked(kind)) {
        for (const char side : {'O', 'T'})
            lists[pickingList(side, kind)][static_cast<std::size_t>(position) - 1].text = row.text;
        setMappedTexts(row.key, row.text);
        return;
    }
    for (ReferenceRow& parent : lists[mappingList(kind)])
        if (parent.key == row.key) parent.text = row.text;
}

void ReferenceSession::remove(char module, char kind, int position) {
    ReferenceRows& main = lists[mainList(module, kind)];
    const ReferenceRow row = main[static_cast<std::size_t>(position) - 1];
    std::string extra;
    if (module == 'A' && isPicked(kind)) {
        for (const char* list : {"lvOpportunity", "lvThreat"})
            std::erase_if(lists[list], [&](const ReferenceRow& mapped) {
                return isMappedFrom(mapped, row.key);
            });
        for (const char side : {'O', 'T'}) removeRow(lists[pickingList(side, kind)], position);
    }
    if (module == 'A' && !isPicked(kind)) {
        ReferenceRows& parents = lists[mappingList(kind)];
        for (std::size_t i = 0; i < parents.size();) {
            if (parents[i].key != row.key) {
                ++i;
                continue;
            }
            if (anyKeyHolds(parents, row.key + "-")) return;
            extra += row.key + "|" + std::to_string(i + 1) + ",";
            parents.erase(parents.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }
    recordChange(
        {tagOf("ADD", module, kind), std::to_string(position), row.key, trimmed(row.text), extra});
    removeRow(main, position);
}

void ReferenceSession::move(char module, char kind, int position, int onto) {
    ReferenceRows& rows = lists[mainList(module, kind)];
    ReferenceRow moved = rows[static_cast<std::size_t>(position) - 1];
    if (module == 'B') moved.subItem.clear();
    rows.insert(rows.begin() + onto, moved);
    removeRow(rows, position <= onto ? position : position + 1);
}

void ReferenceSession::map(char side, char kind, int picked, int onto) {
    ReferenceRows& rows = lists[mappingList(side)];
    const ReferenceRow parent = rows[static_cast<std::size_t>(onto) - 1];
    if (parent.image != imageFor(side)) return;
    const ReferenceRow child = lists[pickingList(side, kind)][static_cast<std::size_t>(picked) - 1];
    const std::string key = parent.key + "-" + child.key;
    if (std::ranges::any_of(rows, [&](const ReferenceRow& row) { return row.key == key; })) return;
    auto above = static_cast<std::size_t>(onto);  // the row beneath which the new one goes
    while (kind == 'W' && above < rows.size()) {
        const auto ends = parts(rows[above].key, "-");
        if (ends.size() < 2 || ends[1].empty() || ends[1][0] != 'S') break;
        ++above;
    }
    const int image = imageFor(kind);
    insertRow(rows, static_cast<int>(above) + 1,
              {key, child.text, image, image, child.subItem, kind == 'S' ? "green" : "red"});
}

void ReferenceSession::dragBack(char side, int position, char kind) {
    ReferenceRows& rows = lists[mappingList(side)];
    if (rows[static_cast<std::size_t>(position) - 1].image == imageFor(kind))
        removeRow(rows, position);
}

void ReferenceSession::unmap(char side, int position) {
    ReferenceRows& rows = lists[mappingList(side)];
    const ReferenceRow row = rows[static_cast<std::size_t>(position) - 1];
    const auto ends = parts(row.key, "-");
    if (ends.size() == 1 && anyKeyHolds(rows, row.key + "-")) return;
    const std::string extra = ends.size() == 1 ? "" : ends[1][0] == 'S' ? "S" : "W";
    recordChange({std::string("ADD_") + side + "M", std::to_string(position), row.key,
                  trimmed(row.text), extra});
    removeRow(rows, position);
}

void ReferenceSession::replay(std::vector<std::string>& from, std::vector<std::string>& to) {
    if (from.empty()) return;
    Fields fields = parts(from.back(), delimiter);
    from.pop_back();
    if (fields.size() < 4) return;
    const bool whole = fields.size() == 5;
    fields.resize(5);
    if (!whole) fields[4].clear();
    const bool mapping = fields[0].ends_with("M");
    if (mapping ? replayMapping(fields) : replayStatement(fields)) pushOnto(to, fields);
}

/// Turns the fields into those of the counter-record; false if there is to be none.
bool ReferenceSession::replayStatement(Fields& fields) {
    const auto tag = parts(fields[0], "_");
    const std::string& operation = tag[0];
    const char module = tag[1][0], kind = tag[2][0];
    const int position = std::stoi(fields[1]);
    const auto index = static_cast<std::size_t>(position) - 1;
    std::vector<std::string> names{mainList(module, kind)};
    if (module == 'A' && isPicked(kind))
        names.insert(names.end(), {pickingList('O', kind), pickingList('T', kind)});
    ReferenceRows& main = lists[names[0]];

    if (operation == "DEL" && isThere(main, position) && main[index].text != fields[3])
        return false;
    const std::string former = isThere(main, position) ? main[index].text : "";
    for (const std::string& name : names) {
        if (operation == "DEL") removeRow(lists[name], position);
        if (operation == "ADD")
            insertRow(lists[name], position,
                      plainRow(module == 'B' ? "" : fields[2], fields[3], imageFor(kind)));
        if (operation == "EDIT" && isThere(lists[name], position))
            lists[name][index].text = fields[3];
    }
    if (operation == "EDIT") {
        if (module == 'A' && isPicked(kind)) setMappedTexts(fields[2], fields[3]);
        if (module == 'A' && !isPicked(kind))
            for (ReferenceRow& row : lists[mappingList(kind)])
                if (row.key == fields[2]) row.text = fields[3];
        fields[3] = former;
        fields[4].clear();
        return true;
    }
    const bool parent = module == 'A' && !isPicked(kind);
    if (parent)
        replayRemovedRows(fields);
    else
        fields[4].clear();
    fields[0] = tagOf(operation == "DEL" ? "ADD" : "DEL", module, kind);
    return true;
}

void ReferenceSession::replayRemovedRows(const Fields& fields) {
    const char kind = fields[0].back();
    ReferenceRows& rows = lists[mappingList(kind)];
    for (const std::string& entry : parts(fields[4], ",")) {
        const auto ends = parts(entry, "|");
        if (ends.size() != 2) continue;
        const int position = std::stoi(ends[1]);
        if (fields[0].starts_with("DEL"))
            removeRow(rows, position);
        else
            insertRow(rows, position, plainRow(ends[0], fields[3], imageFor(kind)));
    }
}

bool ReferenceSession::replayMapping(Fields& fields) {
    const char side = fields[0][4];
    ReferenceRows& rows = lists[mappingList(side)];
    const int position = std::stoi(fields[1]);
    const std::string& extra = fields[4];
    if (fields[0].starts_with("DEL")) {
        if (isThere(rows, position) &&
            rows[static_cast<std::size_t>(position) - 1].text != fields[3])
            return false;
        removeRow(rows, position);
        fields[0] = std::string("ADD_") + side + "M";
        return true;
    }
    if (trimmed(extra).empty())
        insertRow(rows, position, plainRow(fields[2], fields[3], imageFor(side)));
    else
        insertRow(
            rows, position,
            {fields[2], fields[3], extra == "W" ? 2 : 1, 3, "", extra == "S" ? "green" : "red"});
    fields[0] = std::string("DEL_") + side + "M";
    return true;
}

}  // namespace orvanta::test
