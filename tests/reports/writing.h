#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "memory_disk.h"
#include "reports/document_writer.h"
#include "rtf_reader.h"

namespace orvanta::test {

using Outline = std::vector<std::string>;

/// A new document of the program's own word processor, as a script sees it.
class Writing : public testing::Test {
protected:
    Writing() {
        disk.folders = {"docs"};
        DocumentWriter writer(disk);
        application = WordRef(writer.createApplication());
        document = application.get("Documents").get("Add");
        selection = application.get("Selection");
    }

    WordRef end() { return document.get("Bookmarks").item("\\endofdoc").get("Range"); }

    WordRef addTable(int rows, int columns) {
        return document.get("Tables").get("Add", {end().value(), rows, columns});
    }

    static WordRef cell(const WordRef& table, int row, int column) {
        return table.get("Cell", {row, column});
    }
    static WordRef range(const WordRef& table, int row, int column) {
        return cell(table, row, column).get("Range");
    }

    RtfDocument saved() {
        document.call("SaveAs", {std::string("docs/x.rtf")});
        return readRtf(disk.files["docs/x.rtf"]);
    }
    RtfTable savedTable() { return saved().tables().front(); }

    MemoryDisk disk;
    WordRef application, document, selection;
};

}  // namespace orvanta::test
