// A frame of a guide as JSON, for scripts.
#pragma once

#include <nlohmann/json.hpp>

#include "guidance/guide_frame.h"

namespace lorvane {

/// Its members under their names; a target or a menu that it has not is null.
nlohmann::ordered_json guideJson(const GuideFrame& frame);

}  // namespace lorvane
