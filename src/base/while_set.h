// A flag that stands while some work runs, however the work ends.
#pragma once

namespace lorvane {

class WhileSet {
public:
    explicit WhileSet(bool& flag) : flag_(flag) { flag_ = true; }
    ~WhileSet() { flag_ = false; }
    WhileSet(const WhileSet&) = delete;
    WhileSet& operator=(const WhileSet&) = delete;

private:
    bool& flag_;
};

}  // namespace lorvane
