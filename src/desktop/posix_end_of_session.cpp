#include "desktop/end_of_session.h"
#include "sessionfiles/saving.h"

namespace orvanta::desktop {

void prepareForEndOfSession(Program& program, QSessionManager&) { copyUnsavedSession(program); }

}  // namespace orvanta::desktop
