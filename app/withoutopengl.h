// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef APP_WITHOUTOPENGL_H
#define APP_WITHOUTOPENGL_H

/**
 * While it lives, the X11 platform plugin of Qt makes windows without OpenGL. It would load the
 * graphics driver with the first window, which costs a program that draws nothing with OpenGL
 * a third of its start and more memory than its own data. Afterwards the environment is as it was,
 * for programs that this one starts, for example a browser. An integration that a person has chosen
 * is left alone.
 */
class WithoutOpenGl final
{
public:
    WithoutOpenGl();
    ~WithoutOpenGl();
    WithoutOpenGl(const WithoutOpenGl &) = delete;
    WithoutOpenGl &operator=(const WithoutOpenGl &) = delete;

private:
    const bool m_wasChosen;
};

#endif
