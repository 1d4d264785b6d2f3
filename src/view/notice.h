#pragma once

#include <cassert>
#include <functional>
#include <utility>
#include <vector>

namespace orvanta {

/// Lasts while listeners are being told of something, and counts how deep that is nested.
class Telling {
public:
    explicit Telling(int& depth) : m_depth(depth) { ++m_depth; }
    ~Telling() { --m_depth; }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

private:
    int& m_depth;
};

/// Tells its listeners that something happened. It carries nothing: who listens reads the model.
/// A listener must outlive the notice or the last time that it is given.
///
/// While the notice is being given, a listener may read and change any model; if that gives the
/// same notice again, all listeners are told at once. It may neither subscribe to this notice nor
/// destroy it.
class Notice {
public:
    Notice() = default;
    ~Notice() { assert(m_depth == 0 && "a listener destroys the notice that it is told of"); }
    Notice(const Notice&) = delete;
    Notice& operator=(const Notice&) = delete;

    void subscribe(std::function<void()> listener) {
        assert(listener);
        assert(m_depth == 0 && "a listener subscribes to the notice that it is told of");
        m_listeners.push_back(std::move(listener));
    }

    void operator()() const {
        const Telling telling(m_depth);
        for (const auto& listener : m_listeners) listener();
    }

private:
    std::vector<std::function<void()>> m_listeners;
    mutable int m_depth = 0;
};

}  // namespace orvanta
