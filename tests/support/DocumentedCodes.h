// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The codes that the public header documents for each kind of operation, apart from
/// ZO_INVALID_PARAM for a null pointer.
#ifndef ZOGLES_TESTS_SUPPORT_DOCUMENTEDCODES_H
#define ZOGLES_TESTS_SUPPORT_DOCUMENTEDCODES_H

#include "zogles/ZoGLDrawSurface.h"

#include <initializer_list>

using Codes = std::initializer_list<int>;

constexpr Codes bindCodes = {ZO_SUCCESS,   ZO_NO_DISPLAY, ZO_DISPLAY_INIT_FAILED,
                             ZO_NO_CONFIG, ZO_NO_CONTEXT, ZO_NO_WINDOW_SURFACE,
                             ZO_FAILURE};
constexpr Codes initCodes = {ZO_SUCCESS,          ZO_PROGRAM_FAILED,   ZO_FREETYPE_FAILED,
                             ZO_FONT_FACE_FAILED, ZO_FONT_ATLAS_EMPTY, ZO_FAILURE};
constexpr Codes refreshCodes = {ZO_SUCCESS, ZO_NO_EGL_MANAGER};
constexpr Codes createCodes = {ZO_SUCCESS, ZO_NO_FREE_FBO, ZO_FAILURE};
constexpr Codes destroyCodes = {ZO_SUCCESS, ZO_NO_FBO_MANAGER};
constexpr Codes drawCodes = {ZO_SUCCESS, ZO_INVALID_PARAM, ZO_PROGRAM_FAILED, ZO_FAILURE};
constexpr Codes bitmapCodes = {ZO_SUCCESS, ZO_PROGRAM_FAILED, ZO_FAILURE};
constexpr Codes fontCodes = {ZO_SUCCESS, ZO_FREETYPE_FAILED, ZO_FONT_FACE_FAILED,
                             ZO_FONT_ATLAS_EMPTY, ZO_FAILURE};
constexpr Codes measureCodes = initCodes;
constexpr Codes textCodes = {ZO_SUCCESS,         ZO_INVALID_PARAM,    ZO_PROGRAM_FAILED,
                             ZO_FREETYPE_FAILED, ZO_FONT_FACE_FAILED, ZO_FONT_ATLAS_EMPTY,
                             ZO_FAILURE};

#endif
