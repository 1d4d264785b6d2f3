#pragma once

#include <string>

#include "bench.h"
#include "reports/word_processor.h"

namespace orvanta::test {

/// A word processor that keeps what is done to it, in order. It does nothing itself; where it
/// stands in front of another one, that one is asked for the same.
class Recorder : public WordProcessors {
public:
    Recorder();
    /// `behind` must outlive this.
    explicit Recorder(WordProcessors& behind);

    WordObjectPtr createApplication() override;

    /// Each value that was set, each method that was called and each object that was made or
    /// taken hold of, with its arguments: "Table 1.Rows.HeightRule = 1". Tables, and ranges of
    /// the document's body, are numbered as they come.
    const Texts& operations() const;
    /// How often a member was used, those on the way to another one included.
    int uses() const;

    /// Fails the use of this number, from 1.
    void failUse(int use);
    /// Fails what would be kept as this operation.
    void failOperation(const std::string& operation);

    struct Log;

private:
    std::shared_ptr<Log> m_log;
    WordProcessors* m_behind = nullptr;
};

}  // namespace orvanta::test
