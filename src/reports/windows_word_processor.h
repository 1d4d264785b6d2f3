#pragma once

#include "reports/word_processor.h"

namespace orvanta {

/// The word processor that is installed on a Windows system, driven by the names of its members.
/// Where there is none, another one takes its place.
class WindowsWordProcessors : public WordProcessors {
public:
    /// `otherwise` must outlive this.
    explicit WindowsWordProcessors(WordProcessors& otherwise);
    ~WindowsWordProcessors() override;
    WindowsWordProcessors(const WindowsWordProcessors&) = delete;
    WindowsWordProcessors& operator=(const WindowsWordProcessors&) = delete;

    WordObjectPtr createApplication() override;

private:
    WordProcessors& m_otherwise;
    bool m_usesCom;
};

}  // namespace orvanta
