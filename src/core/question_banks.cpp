#include "core/question_banks.h"

#include "view/failure.h"

namespace orvanta {

const std::string& questionAt(const std::vector<std::string>& questions, int number) {
    if (number < 1 || number > static_cast<int>(questions.size()))
        throw Failure(ErrorNumber::SubscriptOutOfRange);
    return questions[static_cast<std::size_t>(number) - 1];
}

}  // namespace orvanta
