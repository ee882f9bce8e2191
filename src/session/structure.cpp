// The operations that change the shape of a study.
#include "session/structure.h"

#include <algorithm>

#include "session/field_words.h"

namespace lorvane {

namespace {

constexpr int fewestLevels = 2;
constexpr double resetSpanOfIndividuals = 10;

// A change of shape may bring a fixed model to a level that is always random.
template <typename Change>
void reshape(Session& session, std::string name, Change change) {
    session.edit({std::move(name)}, [&](SessionState& state) {
        change(state.study);
        applyModelRule(state.study);
    });
}

void changeLevels(Session& session, int difference) {
    reshape(session, "number of levels",
            [&](Study& study) { ApplyNumLevels(study, study.NumLevels + difference); });
}

std::string nameOf(const Session& session, std::string_view stem, int level) {
    return stepWords(session.study(), {&fieldOf(stem), level});
}

}  // namespace

void DoRandomize(Study& study, int level) { study.RandomizedLevel = level; }

void ApplyNumLevels(Study& study, int levels) {
    study.NumLevels = std::clamp(levels, fewestLevels, highestLevel);
    DoRandomize(study, study.NumLevels);
}

void ClearVals(Study& s) {
    s.txtd = 0;
    s.txtRD = 0;
    s.txtOR = 1;
    s.txtPrev = 0.5;
    for (PerLevel<double>* values :
         {&s.txtICC, &s.txtMRange, &s.txtTauSq, &s.txtDRange, &s.txtOmega, &s.txtQ, &s.txtRsq})
        values->fill(0);
    s.txtMRange(1) = resetSpanOfIndividuals;
}

void SetDataType(Study& s, const EffectMetric& metric) {
    s.DataType = metric.data;
    if (s.isMeans())
        s.DType = metric.d;
    else
        s.BinaryType = metric.binary;
}

void addLevel(Session& session) { changeLevels(session, 1); }

void removeLevel(Session& session) { changeLevels(session, -1); }

void randomizeLevel(Session& session, int level) {
    if (level <= session.study().NumLevels)
        reshape(session, "level of randomization", [&](Study& study) { DoRandomize(study, level); });
}

void toggleBlocked(Session& session, int level) {
    const Study& s = session.study();
    if (level >= 2 && level <= s.NumLevels)
        randomizeLevel(session, s.isBlocked(level) ? level : level - 1);
}

void changeDataType(Session& session, const EffectMetric& metric) {
    reshape(session, "effect metric", [&](Study& study) {
        ClearVals(study);
        SetDataType(study, metric);
    });
}

void ResetForOD(Session& session) {
    reshape(session, "example of the optimal design", [](Study& study) {
        ApplyNumLevels(study, fewestLevels);
        SetDataType(study, {study.DataType, DTypes::total, BinaryTypes::oddsRatio});
    });
}

void enterIcc(Session& session) {
    reshape(session, "ICC metric", [](Study& study) { study.IccMetric = IccMetrics::icc; });
}

void enterSpan(Session& session, RangeModes mode) {
    reshape(session, "ICC metric", [&](Study& study) {
        study.IccMetric = IccMetrics::span;
        study.limits.RangeMode = mode;
    });
}

void enterEffectAs(Session& session, TauSqMetrics metric) {
    reshape(session, "tau-sq metric", [&](Study& study) { study.TauSqMetric = metric; });
}

void linkSizes(Session& session, int level, bool linked) {
    reshape(session, nameOf(session, "Link N", level), [&](Study& study) {
        study.LinkN(level) = linked;
        if (linked)
            study.txtNC(level) = study.txtNT(level);
    });
}

void linkCosts(Session& session, int level, bool linked) {
    reshape(session, nameOf(session, "Link Cost", level), [&](Study& study) {
        study.LinkCost(level) = linked;
        if (linked)
            study.txtCostC(level) = study.txtCostT(level);
    });
}

void toggleLink(Session& session, FieldRef field) {
    if (field->isLinked == nullptr)
        return;
    const bool linked = !field->isLinked(session.study(), field.index);
    if (field->step == StepSource::sizeOfLevel)
        linkSizes(session, field.index, linked);
    else
        linkCosts(session, field.index, linked);
}

void pasteSizes(Session& session, const PerLevel<double>& sizes) {
    session.edit({"pasted design"}, [&](SessionState& state) {
        Study& s = state.study;
        for (int level = lowestLevel; level <= s.NumLevels; ++level)
            s.txtNT(level) = s.txtNC(level) = s.txtNB(level) = sizes(level);
    });
}

void setStepOfSizes(Session& session, int level, int step) {
    session.edit({nameOf(session, "IncN", level), Reach::setting},
                 [&](SessionState& state) { state.settings.IncN(level) = step; });
}

void setStepOfCosts(Session& session, int level, int step) {
    session.edit({nameOf(session, "IncCost", level), Reach::setting},
                 [&](SessionState& state) { state.settings.IncCost(level) = step; });
}

}  // namespace lorvane
