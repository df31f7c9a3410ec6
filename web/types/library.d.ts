// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The script that build/describe.mjs makes from the library's header and guide.
export const results: Record<number, { name: string; meaning: string; advice: string }>;
export const operationNotes: Record<string, string>;
export const version: string;
