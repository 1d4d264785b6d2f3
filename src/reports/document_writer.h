#pragma once

#include "reports/word_processor.h"
#include "view/platform.h"

namespace orvanta {

/// A word processor of our own, for systems without another one. It knows the part of the
/// object model that the reports use, keeps the document in memory and saves it as RTF.
class DocumentWriter : public WordProcessors {
public:
    explicit DocumentWriter(Disk& disk) : m_disk(disk) {}
    WordObjectPtr createApplication() override;

private:
    Disk& m_disk;
};

}  // namespace orvanta
