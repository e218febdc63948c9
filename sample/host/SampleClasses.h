#pragma once

#include <string>

namespace velmar::toolkit {
class Toolkit;
}

namespace velmar::sample {

/// Makes the sample application's classes known to this process's `CreateObject`: its API library, whose
/// messages the toolkit shows under the title, and its account codec. The toolkit is borrowed.
void RegisterSampleClasses(toolkit::Toolkit& toolkit, const std::string& title);

}  // namespace velmar::sample
