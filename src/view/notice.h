#pragma once

#include <functional>
#include <vector>

namespace orvanta {

/// Tells its listeners that something happened. It carries nothing: who listens reads the model.
/// A listener must outlive the notice or the last time that it is given.
class Notice {
public:
    Notice() = default;
    Notice(const Notice&) = delete;
    Notice& operator=(const Notice&) = delete;

    void subscribe(std::function<void()> listener) { m_listeners.push_back(std::move(listener)); }

    void operator()() const {
        for (const auto& listener : m_listeners) listener();
    }

private:
    std::vector<std::function<void()>> m_listeners;
};

}  // namespace orvanta
