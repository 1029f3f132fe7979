#pragma once

#include "Device.h"

#include <cstdio>

/// What the capture node answers to single requests, where it takes more than one call of Device:
/// 0 or a negative errno.
namespace meridax::simcam {

/// Copies `text` into a field of a structure of the kernel, cut to its length.
template <std::size_t N>
void setText(__u8 (&field)[N], const char *text)
{
    std::snprintf(reinterpret_cast<char *>(field), N, "%s", text);
}

int queryCapabilities(const Device &device, v4l2_capability &c);
int enumFormat(v4l2_fmtdesc &f);
int enumFrameSize(v4l2_frmsizeenum &f);
int enumFrameInterval(v4l2_frmivalenum &f);
int accessFormat(Device &device, v4l2_format &f, unsigned request);
int accessRate(Device &device, v4l2_streamparm &p, bool isSet);
int enumInput(v4l2_input &input);
int setPriority(Handle &handle, std::uint32_t priority);

/// The older requests for controls, in terms of the newer ones.
int queryOldControl(const Device &device, v4l2_queryctrl &q);
int queryMenu(const Device &device, v4l2_querymenu &q);
int accessOldControl(Device &device, Handle *handle, v4l2_control &c, unsigned extRequest);

int unsubscribe(Handle &handle, const v4l2_event_subscription &s);

} // namespace meridax::simcam
