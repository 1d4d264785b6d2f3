#include "data_folder.h"

namespace orvanta::test {

std::string dataFolder() { return ORVANTA_DATA; }

}  // namespace orvanta::test
