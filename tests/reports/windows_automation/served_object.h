#pragma once

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "reports/word_processor.h"

namespace orvanta::test {

/// How a served word processor differs from one in order.
struct Flaws {
    std::string lackedMember{};
    int lastUse = 0;    // from 1; the process ends there
    int busyCalls = 0;  // how many calls it takes only at the second attempt, beginning now
};

/// What all objects of a served word processor share.
class Service {
public:
    explicit Service(Flaws flaws) : m_flaws(std::move(flaws)) {}

    /// The number by which a member is asked for from now on; DISPID_UNKNOWN if it is lacked.
    DISPID numberOf(const std::string& member);
    const std::string& memberOf(DISPID number) const;

    /// Whether the present call is to be made again.
    bool isBusy();
    void use();
    void objectMade() { ++m_objects; }
    /// The thread's messages end with the last object.
    void objectReleased();

private:
    Flaws m_flaws;
    std::vector<std::string> m_members;
    int m_calls = 0, m_uses = 0, m_objects = 0;
};

/// The automation object by which another process reaches this one, with one reference. Each get,
/// put and call goes on to it; its Failure is an exception there.
IDispatch* serve(Service& service, WordObjectPtr object);

}  // namespace orvanta::test
