#include "reports/word_processor.h"

#include "view/failure.h"

namespace orvanta {

WordObject& WordRef::object() const {
    if (!m_object) throw Failure(ErrorNumber::ObjectNotSet);
    return *m_object;
}

WordRef WordRef::get(std::string_view member, const WordArguments& arguments) const {
    return WordRef(object().get(member, arguments));
}

void WordRef::put(std::string_view member, const WordValue& value) const {
    object().put(member, value);
}

void WordRef::call(std::string_view member, const WordArguments& arguments) const {
    object().call(member, arguments);
}

}  // namespace orvanta
