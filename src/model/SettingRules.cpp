#include "SettingRules.h"

#include <cmath>

namespace rules
{

bool hasCustomAspect(const KvMvcViewSettings& view)
{
    return view.display_aspect_x == KV_MVC_ASPECT_UNSET &&
           view.display_aspect_y == KV_MVC_ASPECT_UNSET;
}

void describeAspectRatio(const ViewRow&, const QString& key, const KvMvcViewSettings& view,
                         Describing& out)
{
    for (const auto& ratio : out.vocabulary.aspectRatios()) {
        if (view.display_aspect_x == ratio.x && view.display_aspect_y == ratio.y) {
            out.state.insert(key, ratio.text);
            return;
        }
    }
}

void applyAspectRatio(const ViewRow&, const QString& key, const Applying& in,
                      KvMvcViewSettings& view)
{
    if (!in.state.contains(key)) {
        return;
    }
    const QString text = in.state.value(key).toString();
    for (const auto& ratio : in.vocabulary.aspectRatios()) {
        if (text != ratio.text) {
            continue;
        }
        view.display_aspect_x = ratio.x;
        view.display_aspect_y = ratio.y;
        if (!hasCustomAspect(view)) {
            view.pixel_aspect_x = KV_MVC_ASPECT_UNSET;
            view.pixel_aspect_y = KV_MVC_ASPECT_UNSET;
        }
        return;
    }
}

namespace
{

const QLatin1String noFrameRate("0");

std::optional<QString> standardRateText(const Vocabulary& vocabulary, double rate)
{
    for (const auto& item : vocabulary.frameRates()) {
        if (rate == item.rate || std::abs(item.rate - rate) < item.tolerance) {
            return item.text;
        }
    }
    if (rate == 0) {
        return noFrameRate;
    }
    return std::nullopt;
}

std::optional<double> rateOfText(const Applying& in, const QString& text)
{
    for (const auto& item : in.vocabulary.frameRates()) {
        if (text == item.text) {
            return item.rate;
        }
    }
    if (text == noFrameRate) {
        return 0;
    }
    if (!text.isEmpty() && text == in.customFrameRate.text) {
        return in.customFrameRate.rate;
    }
    return std::nullopt;
}

} // namespace

void describeFrameRate(const ViewRow& row, const QString& key, const KvMvcViewSettings& view,
                       Describing& out)
{
    const double rate = view.frame_rate;
    if (const auto text = standardRateText(out.vocabulary, rate)) {
        out.state.insert(key, *text, !(out.flags & row.lock));
        return;
    }
    // The lock covers the listed rates and "not set" only.
    out.customFrameRate = CustomFrameRate{QVariant(rate).toString(), rate};
    out.state.insert(key, out.customFrameRate->text);
}

void applyFrameRate(const ViewRow&, const QString& key, const Applying& in, KvMvcViewSettings& view)
{
    if (!in.state.contains(key)) {
        return;
    }
    if (const auto rate = rateOfText(in, in.state.value(key).toString())) {
        view.frame_rate = *rate;
    }
}

void describeFieldOrder(const ViewRow&, const QString& key, const KvMvcViewSettings& view,
                        Describing& out)
{
    const bool interlaced =
        view.interlace_mode == KV_MVC_INTERLACED || view.interlace_mode == KV_MVC_MBAFF;
    const bool topFirst = view.field_order == KV_MVC_TOP_FIELD_FIRST;
    if (!topFirst && !interlaced) {
        return;
    }
    const qint32 order = topFirst ? KV_MVC_TOP_FIELD_FIRST : KV_MVC_BOTTOM_FIELD_FIRST;
    const auto text = out.vocabulary.list(ListName::FieldOrders).textOf(order);
    out.state.insert(key, text.value_or(QString()), interlaced);
}

void applySlices(const ViewRow& row, const QString& key, const Applying& in,
                 KvMvcViewSettings& view)
{
    applyPlainly(row, key, in, view);
    if (view.num_slices == 0) {
        view.num_slices = 1;
    }
    view.multi_slice = view.num_slices >= 2;
}

void applyBitrateMode(const ViewRow& row, const QString& key, const Applying& in,
                      KvMvcViewSettings& view)
{
    const auto& modes = in.vocabulary.list(ListName::BitrateModes);
    if (in.state.contains(key) &&
        modes.codeOf(in.state.value(key).toString()) == KV_MVC_CONSTANT_BITRATE) {
        view.hrd_mode = 1;
    }
    applyPlainly(row, key, in, view);
}

} // namespace rules
