// A frame of a guide as JSON.
#include "cli/guide_json.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

Json nameOrNull(const std::string& name) { return name.empty() ? Json() : Json(name); }

}  // namespace

Json guideJson(const GuideFrame& frame) {
    return {{"frame", frame.frame},  {"caption", frame.caption},           {"title", frame.title},
            {"text", frame.text},    {"target", nameOrNull(frame.target)}, {"menu", nameOrNull(frame.menu)},
            {"frames", frame.frames}};
}

}  // namespace lorvane
