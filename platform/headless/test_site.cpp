#include "platform/headless/test_site.h"

namespace tolva::headless {

int TestSite::MessageBox(StringView prompt, int style)
{
    messageBoxes.push_back({ String(prompt), style });
    return messageBoxAnswer;
}

} // namespace tolva::headless
