#!/usr/bin/env python3
"""Writes the SVG sources of every icon below source/.

An icon is a container (tile, page or folder, in one colour of the palette) and a white glyph. Glyphs are drawn
on a field from -20 to 20 in both directions; the container scales them and sets the stroke, so that strokes are
equally heavy everywhere. `currentColor` inside a glyph is the colour of the container (for cut-outs).
"""

import os

HERE = os.path.dirname(os.path.abspath(__file__))

# name: (upper gradient colour, lower gradient colour)
PALETTE = {
    'red': ('#f2776c', '#d3423c'),
    'orange': ('#f99850', '#e0641c'),
    'amber': ('#f4b63f', '#d98a0b'),
    'lime': ('#9cc44a', '#6d971f'),
    'green': ('#58c077', '#2a964c'),
    'teal': ('#3fbfb0', '#12897e'),
    'sky': ('#56c1ec', '#1b93c9'),
    'blue': ('#58a2f4', '#2a72d4'),
    'navy': ('#6583cc', '#3a549f'),
    'indigo': ('#8690f2', '#555fd2'),
    'violet': ('#b088ee', '#8150cf'),
    'pink': ('#f07fb0', '#d0467f'),
    'brown': ('#c08b5c', '#8f5b30'),
    'plum': ('#cb7ad0', '#9a459f'),
    'crimson': ('#e2677f', '#b02f4f'),
    'mint': ('#5fcfa6', '#1f9c72'),
    'slate': ('#8c9db0', '#5f7287'),
    'ink': ('#6a7c90', '#445468'),
    'forest': ('#4a9a80', '#256350'),
}

FILL = 'fill="#fff" stroke="none"'
SOLID = 'fill="#fff"'
CUT = 'fill="currentColor" stroke="none"'
CARVE = 'stroke="currentColor"'
FAINT = 'stroke-opacity=".6"'


def path(data, attributes=''):
    return f'<path d="{data}" {attributes}/>'.replace(' />', '/>')


def circle(x, y, radius, attributes=''):
    return f'<circle cx="{x}" cy="{y}" r="{radius}" {attributes}/>'.replace(' />', '/>')


def box(x, y, width, height, radius, attributes=''):
    return (f'<rect x="{x}" y="{y}" width="{width}" height="{height}" rx="{radius}" {attributes}/>'
            .replace(' />', '/>'))


def group(content, transform):
    return f'<g transform="{transform}">{content}</g>'


# Glyphs: writing and documents

def textLines():
    return path('M-14-11H14M-14 0H14M-14 11H3')


def letterW():
    return path('M-16-13L-9 13L0-8L9 13L16-13')


def letterA():
    return path('M-11 9L0-17L11 9M-7 0H7') + path('M-14 18H14', FAINT)


def angleBrackets():
    return path('M-9-9L-18 0L-9 9M9-9L18 0L9 9') + path('M3.5-13L-3.5 13', FAINT)


def pilcrow():
    return path('M3-15H-4A8 8 0 0 0-4 2H3Z', SOLID) + path('M3-15V17M11-15V17M3-15H15')


def sigma():
    return path('M13-10V-15H-12L2 0L-12 15H13V10')


def table():
    return (box(-17.5, -16, 35, 32, 5) + path('M-17-14H17V-5H-17Z', FILL)
            + path('M-17 5.5H17M-5.5-6V16M7-6V16', 'stroke-width="3.6" stroke-linecap="butt"'))


def pie():
    return (path('M-3-14A16 16 0 1 0 13 2H-3Z', FILL)
            + path('M3-19A16 16 0 0 1 18-4H3Z', FILL + ' fill-opacity=".6"'))


def slidePlay():
    return (path('M-18-15H18V7H-18Z') + path('M-4-10L6-4L-4 2Z', SOLID + ' stroke-width="2"')
            + path('M-5 8L-10 18M5 8L10 18', FAINT))


def slides():
    return (path('M-17 9V-11A4 4 0 0 1-13-15H13', FAINT) + box(-12, -9, 32, 25, 5, FILL)
            + path('M-6 9L0 2L5.5 6L13-2', CARVE))


def pencil():
    body = (path('M-5-13V9L0 19L5 9V-13Z', FILL) + path('M-5-16V-17.5A2.5 2.5 0 0 1-2.5-20H2.5A2.5 2.5 0 0 1 5-17.5V-16Z', FILL))
    return group(body, 'translate(2 -2) rotate(45) scale(1.15)') + path('M2 18H18', FAINT)


def bars():
    return (box(-17, 2, 9, 16, 2.5, FILL) + box(-4.5, -8, 9, 26, 2.5, FILL) + box(8, -18, 9, 36, 2.5, FILL))


def bezier():
    return (path('M-15 13C-15-6-6-11 0-11S15-6 15 13') + path('M-17-11H17', FAINT)
            + box(-5, -16, 10, 10, 2, FILL) + box(-20, 9, 10, 10, 2, FILL) + box(10, 9, 10, 10, 2, FILL)
            + circle(-17, -11, 3.5, FILL) + circle(17, -11, 3.5, FILL))


def layers():
    return (path('M0-17L18-7L0 3L-18-7Z', SOLID + ' stroke-width="2"')
            + path('M-17 3L0 12L17 3', FAINT) + path('M-17 11.5L0 20.5L17 11.5', FAINT))


def hash_():
    return path('M-6-16L-10 16M10-16L6 16M-15-6H17M-17 6H15')


# Glyphs: files and folders

SHEET = 'M-9-19H3L14-8V15A4 4 0 0 1 10 19H-9A4 4 0 0 1-13 15V-15A4 4 0 0 1-9-19Z'
FOLDER = 'M-16-16H-6A3 3 0 0 1-4-15L0-10.5H16A4 4 0 0 1 20-6.5V12A4 4 0 0 1 16 16H-16A4 4 0 0 1-20 12V-12A4 4 0 0 1-16-16Z'


def sheetPlus():
    return path(SHEET, FILL) + path('M.5-5V11M-7.5 3H8.5', CARVE)


def sheetCopy():
    return (path('M-7 12H-14A4 4 0 0 1-18 8V-14A4 4 0 0 1-14-18H1A4 4 0 0 1 5-14V-13', FAINT)
            + path('M-3-9H9L19 1V16A4 4 0 0 1 15 20H-3A4 4 0 0 1-7 16V-5A4 4 0 0 1-3-9Z', FILL)
            + path('M0 7H12M7 1.5L12.5 7L7 12.5', CARVE + ' stroke-width="4"'))


def folderArrow():
    return path(FOLDER, FILL) + path('M-10 3H9M2-4.5L9.5 3L2 10.5', CARVE)


def folderStar():
    return (path(FOLDER, FILL)
            + path('M0-7.5L3.2-.9L10.4 .1L5.2 5.2L6.4 12.4L0 9L-6.4 12.4L-5.2 5.2L-10.4 .1L-3.2-.9Z', CUT + ' stroke-linejoin="round"'))


def palette():
    return (path('M0-19C11-19 20-12 20-2C20 5 14 7 9 7C3 7 2 10 4 13C6 16 4 19 0 19C-12 19-20 11-20 0C-20-11-11-19 0-19Z', FILL)
            + circle(-12, -1, 3.6, CUT) + circle(-6, -10.5, 3.6, CUT) + circle(5, -11.5, 3.6, CUT)
            + circle(12.5, -4, 3.6, CUT))


def sheetLines():
    return path(SHEET, FILL) + path('M-6-4H3M-6 4H7M-6 12H7', CARVE + ' stroke-width="4"')


# Glyphs: actions

def scissors():
    return (path('M-5.5 6L9.5-18M5.5 6L-9.5-18') + circle(-9, 12, 5.8) + circle(9, 12, 5.8))


def clipboard():
    return (box(-15, -15, 30, 34, 5, FILL) + box(-9, -20, 18, 11, 4, SOLID + ' ' + CARVE + ' stroke-width="3"')
            + path('M-8-1H8M-8 6.5H8M-8 14H2', CARVE + ' stroke-width="3.6"'))


def chain():
    return group(path('M-5-8H-11A8 8 0 0 0-11 8H-5M5-8H11A8 8 0 0 1 11 8H5M-8 0H8'), 'rotate(-45) scale(1.05)')


def bin_():
    return (path('M-16-11H16M-6-12V-15A3 3 0 0 1-3-18H3A3 3 0 0 1 6-15V-12')
            + path('M-12-11L-10 15A4 4 0 0 0-6 19H6A4 4 0 0 0 10 15L12-11Z', FILL)
            + path('M-4.5 0L4.5 9.5M4.5 0L-4.5 9.5', CARVE + ' stroke-width="4"'))


def prompt():
    return path('M-15-11L-4 0L-15 11') + path('M2 12H16')


def dollarPrompt():
    return (path('M1-9C1-12-3-13-7-13C-12-13-15-11-15-7C-15 2 1-2 1 7C1 11-2 13-7 13C-12 13-15 11-15 8')
            + path('M-7-19V19', 'stroke-width="4"') + box(8, -8, 10, 21, 2, FILL + ' fill-opacity=".75"'))


def braces():
    left = 'M-6-17H-7A6 6 0 0 0-13-11V-5A5 5 0 0 1-18 0A5 5 0 0 1-13 5V11A6 6 0 0 0-7 17H-6'
    right = 'M6-17H7A6 6 0 0 1 13-11V-5A5 5 0 0 0 18 0A5 5 0 0 0 13 5V11A6 6 0 0 1 7 17H6'
    return path(left + right) + circle(0, 0, 3.4, FILL)


def caretLines():
    return (path('M-18-12H-1M-18 0H-5M-18 12H-1', FAINT)
            + path('M6-18Q12-18 12-13V13Q12 18 6 18M18-18Q12-18 12-13M12 13Q12 18 18 18'))


def lambdaParens():
    return (path('M-13-17Q-22 0-13 17M13-17Q22 0 13 17', FAINT)
            + path('M-6-12Q-1-13 1-6L7 12M2-2L-7 12'))


def eyeOpen():
    return (path('M-20 0C-14-9-7-13 0-13S14-9 20 0C14 9 7 13 0 13S-14 9-20 0Z', FILL)
            + circle(0, 0, 7.2, CUT) + circle(2.3, -2.3, 2.3, FILL))


def eyeClosed():
    return (path('M-18-6C-12 3-6 6 0 6S12 3 18-6')
            + path('M-14 2L-18 9M-5 7L-7 15M5 7L7 15M14 2L18 9'))


def landscape():
    return (box(-19, -16, 38, 32, 6, FILL) + circle(-9.5, -7, 3.8, CUT)
            + path('M-15 11L-7 1.5L-1.5 7L7-4L15 5V9A2 2 0 0 1 13 11Z',
                   'fill="currentColor" stroke="currentColor" stroke-width="1.5"'))


def landscapeToIcon():
    return (group(landscape(), 'translate(-3.5 -4) scale(.85)')
            + box(1, 1, 18, 18, 5.5, 'fill="#fff" stroke="currentColor" stroke-width="3.4"')
            + path('M10 5V15M5 10H15', CARVE + ' stroke-width="3.4"'))


def corners():
    return path('M-19-10V-14A5 5 0 0 1-14-19H-10M10-19H14A5 5 0 0 1 19-14V-10M19 10V14A5 5 0 0 1 14 19H10'
                'M-10 19H-14A5 5 0 0 1-19 14V10')


def finInFrame():
    return (corners() + path('M-11 7C-8-4-1-10 10-12C6-5 6 1 10 7Z', FILL)
            + path('M-11 13H10', FAINT + ' stroke-width="3.6"'))


def wen(attributes):
    """The character for writing, as four strokes."""
    return path('M9-1V1.5M2 3.5H16M13 4C12 9 8 13 3 15M5 4C6 9 10 13 15 15', attributes)


def translateCards():
    return (path('M-8 6H-14A5 5 0 0 1-19 1V-14A5 5 0 0 1-14-19H1A5 5 0 0 1 6-14V-8', 'stroke-width="3.6"')
            + path('M-12-2L-6.5-14L-1-2M-10-6H-3', 'stroke-width="3.6"')
            + box(-4, -6, 24, 26, 6, FILL) + wen(CARVE + ' stroke-width="3.2"'))


def globe(radius):
    half = radius * .45
    return (circle(0, 0, radius) + f'<ellipse cx="0" cy="0" rx="{half:g}" ry="{radius}"/>'
            + path(f'M{-radius} 0H{radius}'))


def globeCard():
    return (group(globe(14), 'translate(-5 -5)')
            + box(-3, -3, 23, 23, 6, 'fill="#fff" stroke="currentColor" stroke-width="3.4"')
            + path('M3 14L8.5 2L14 14M5 10H12', CARVE + ' stroke-width="3.6"'))


def matrixCode():
    def finder(x, y):
        return box(x, y, 12.5, 12.5, 2.5, 'stroke-width="4"') + box(x + 4.25, y + 4.25, 4, 4, .8, FILL)
    modules = ''.join(box(x, y, 5, 5, 1, FILL) for x, y in ((3, 3), (9, 9), (14, 3), (3, 14), (14, 14)))
    return finder(-17, -17) + finder(4.5, -17) + finder(-17, 4.5) + modules


# Glyphs: custom icons and others

def apps():
    return (box(-18, -18, 16, 16, 4.5, FILL) + box(2, -18, 16, 16, 4.5, FILL) + box(-18, 2, 16, 16, 4.5, FILL)
            + circle(10, 10, 8.2, FILL + ' fill-opacity=".65"'))


def fruit():
    return (path('M0-6C-5-9-17-10-17 3C-17 12-10 20-5 20C-3 20-2 19 0 19S3 20 5 20C10 20 17 12 17 3C17-10 5-9 0-6Z', FILL)
            + path('M0-6Q0-13-4-17', 'stroke-width="4"')
            + path('M3-10C3-16 8-20 17-20C16-13 11-10 3-10Z', FILL + ' fill-opacity=".7"')
            + path('M-11 4Q-11-2-6-3', CARVE + ' stroke-width="3"'))


def openBook():
    return (path('M-1.5-12C-6-16-13-17-20-16V13C-13 12-6 13-1.5 17ZM1.5-12C6-16 13-17 20-16V13C13 12 6 13 1.5 17Z', FILL)
            + path('M-14.5-8Q-10-8-6.5-6M-14.5 0Q-10 0-6.5 2M14.5-8Q10-8 6.5-6M14.5 0Q10 0 6.5 2', CARVE + ' stroke-width="2.6"'))


def calendar():
    dots = ''.join(box(x - 2.4, y - 2.4, 4.8, 4.8, 1.2, CUT) for y in (3, 11) for x in (-10, 0, 10) if (x, y) != (10, 11))
    return (box(-18, -15, 36, 33, 6, FILL) + path('M-18-5.5H18', CARVE + ' stroke-width="3" stroke-linecap="butt"')
            + path('M-9-15.5V-9.5M9-15.5V-9.5', CARVE + ' stroke-width="8" stroke-linecap="butt"')
            + path('M-9-18V-12M9-18V-12', 'stroke-width="4"') + dots)


def cloud():
    return path('M-11 14A9 9 0 0 1-12-4A12 12 0 0 1 11-6A10 10 0 0 1 11 14Z', FILL)


def globeLens():
    return (group(globe(14), 'translate(-4.5 -4.5)')
            + circle(8, 7, 8.5, 'fill="currentColor" stroke="currentColor" stroke-width="7"')
            + circle(8, 7, 7.5, 'fill="#fff" fill-opacity=".35"') + path('M13.5 12.5L19 18', 'stroke-width="6"'))


def window():
    return (box(-19, -16, 38, 32, 6, FILL) + path('M-19-6H19', CARVE + ' stroke-width="2.6" stroke-linecap="butt"')
            + circle(-13, -11, 2.4, CUT) + circle(-6, -11, 2.4, CUT) + circle(1, -11, 2.4, CUT)
            + box(-13, 0, 9, 10, 2, CUT + ' fill-opacity=".55"'))


def loopedSquare():
    return path('M-6-6V-11.5A5.5 5.5 0 1 0-11.5-6H11.5A5.5 5.5 0 1 0 6-11.5V11.5A5.5 5.5 0 1 0 11.5 6H-11.5A5.5 5.5 0 1 0-6 11.5Z')


def laptop():
    return (box(-15, -15, 30, 22, 4, SOLID + ' fill-opacity=".3"') + path('M-20 14H20', 'stroke-width="5.5"'))


def envelope():
    return (box(-19, -14, 38, 28, 6, FILL) + path('M-17-9L-3 2.5A5 5 0 0 0 3 2.5L17-9', CARVE + ' stroke-width="3.4"'))


def notes():
    return (path('M-7 13V-12L14-17V8') + path('M-7-12L14-17V-9L-7-4Z', SOLID + ' stroke-width="3"')
            + f'<ellipse cx="-11" cy="13" rx="6.5" ry="5.5" {FILL}/><ellipse cx="10" cy="8.5" rx="6.5" ry="5.5" {FILL}/>')


def bird():
    return (path('M-20-3L-9-1C-4-2-3-5-2.5-9A9 9 0 0 1 14.5-11L20-8L15-5C15 6 9 13-1 13C-10 13-13 8-20-3Z', FILL)
            + path('M-8 1C-3-1 3-2 8-4C8 5 3 9-2 8.5C-6 8-8 5-8 1Z', CUT) + circle(7.5, -9, 2.2, CUT)
            + path('M0 14V19M5.5 13V19', 'stroke-width="3"'))


def camera():
    return (box(-20, -13, 27, 26, 6, FILL) + path('M10-3L20-10V10L10 3Z', SOLID + ' stroke-width="1.5"')
            + path('M-10-5L-2 0L-10 5Z', 'fill="currentColor" stroke="currentColor" stroke-width="2"'))


def bubbles():
    return (path('M-14-18H3A5 5 0 0 1 8-13V-6A5 5 0 0 1 3-1H-7L-14 5V-1.5A5 5 0 0 1-19-6V-13A5 5 0 0 1-14-18Z', FILL + ' fill-opacity=".65"')
            + path('M0-6H14A5.5 5.5 0 0 1 19.5-.5V8A5.5 5.5 0 0 1 14 13.5V19L7 13.5H0A5.5 5.5 0 0 1-5.5 8V-.5A5.5 5.5 0 0 1 0-6Z',
                   'fill="#fff" stroke="currentColor" stroke-width="3" paint-order="stroke"')
            + circle(1, 4, 2, CUT) + circle(7, 4, 2, CUT) + circle(13, 4, 2, CUT))


def sun():
    rays = ''.join(group(path('M0-14V-19'), f'rotate({angle})') for angle in range(0, 360, 45))
    return circle(0, 0, 8, FILL) + rays


# Containers

def gradient(colour):
    upper, lower = PALETTE[colour]
    return ('<defs><linearGradient id="body" x1="0" y1="0" x2="0" y2="1">'
            f'<stop offset="0" stop-color="{upper}"/><stop offset="1" stop-color="{lower}"/></linearGradient></defs>')


def place(glyph, colour, x, y, scale, stroke):
    return (f'<g transform="translate({x} {y}) scale({scale})" color="{PALETTE[colour][1]}" fill="none" stroke="#fff" '
            f'stroke-width="{stroke / scale:.3g}" stroke-linecap="round" stroke-linejoin="round">{glyph}</g>')


def svg(content, side=64):
    return f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {side} {side}">\n{content}\n</svg>\n'


def tile(colour, glyph):
    return svg('\n'.join((
        gradient(colour),
        box(3, 3, 58, 58, 15, 'fill="url(#body)"'),
        box(4, 4, 56, 56, 14, 'fill="none" stroke="#fff" stroke-opacity=".22" stroke-width="2"'),
        place(glyph, colour, 32, 32, 1, 5))))


def page(colour, glyph):
    return svg('\n'.join((
        gradient(colour),
        path('M15 3H38L55 20V55A6 6 0 0 1 49 61H15A6 6 0 0 1 9 55V9A6 6 0 0 1 15 3Z', 'fill="url(#body)"'),
        path('M38 3V15A5 5 0 0 0 43 20H55Z', 'fill="#fff" fill-opacity=".55"'),
        place(glyph, colour, 32, 39, .86, 4.8))))


def folder(colour, glyph):
    upper, lower = PALETTE[colour]
    return svg('\n'.join((
        gradient(colour),
        path('M8 7H23A5 5 0 0 1 26.5 8.5L30.5 12.5H55A5 5 0 0 1 60 17.5V40H3V12A5 5 0 0 1 8 7Z', f'fill="{lower}"'),
        box(7, 15.5, 50, 20, 3, 'fill="#fff" fill-opacity=".8"'),
        box(2, 19, 60, 40, 6, 'fill="url(#body)"'),
        box(3, 20, 58, 38, 5, 'fill="none" stroke="#fff" stroke-opacity=".2" stroke-width="2"'),
        place(glyph, colour, 32, 39, .84, 4.4))))


# Page buttons of the window: two tones of one slate on a field of 36.

SLATE = '#768a9f'


def sidebar(strong, soft):
    return svg(f'<g fill="none" stroke="{SLATE}" stroke-width="3" stroke-linecap="round" stroke-linejoin="round" color="{SLATE}">'
               f'<g fill="{SLATE}" fill-opacity=".38" stroke="none">{soft}</g>{strong}</g>', 36)


def sidebarIcons():
    outline = 'M9.5 4.5H20.5L28.5 12.5V28.5A3 3 0 0 1 25.5 31.5H10.5A3 3 0 0 1 7.5 28.5V7.5A3 3 0 0 1 10.5 4.5Z'
    tray = 'M7.5 6.5H13.5L17.5 10.5H28.5A3 3 0 0 1 31.5 13.5V26.5A3 3 0 0 1 28.5 29.5H7.5A3 3 0 0 1 4.5 26.5V9.5A3 3 0 0 1 7.5 6.5Z'
    star = 'M18 14.5L19.8 18.4L24 18.9L20.9 21.8L21.7 26L18 23.9L14.3 26L15.1 21.8L12 18.9L16.2 18.4Z'
    colours = ((11, 18.5), (14.5, 11.5), (22, 11), (26.3, 17))
    return {
        'page-createNewFile': sidebar(path(outline) + path('M18 14.5V24.5M13 19.5H23'), path(outline)),
        'page-copyFilesTo': sidebar(path('M12.5 8.5V6.5A2 2 0 0 1 14.5 4.5H29.5A2 2 0 0 1 31.5 6.5V21.5A2 2 0 0 1 29.5 23.5H27.5')
                                    + box(4.5, 12.5, 19, 19, 3) + path('M9.5 22H18M14.5 18L18.5 22L14.5 26'),
                                    box(4.5, 12.5, 19, 19, 3)),
        'page-commonPath': sidebar(path(tray) + path(star, f'fill="{SLATE}" stroke="none"'), path(tray)),
        'page-customIcon': sidebar(path('M18 4.5C25.5 4.5 31.5 9.5 31.5 16.5C31.5 21.5 27.5 23.5 23.5 23.5C19.5 23.5 19 25.5 20 27.5C21 29.5 20 31.5 17.5 31.5C10.5 31.5 4.5 25.5 4.5 18C4.5 10.5 10.5 4.5 18 4.5Z')
                                   + ''.join(circle(x, y, 2.1, f'fill="{SLATE}" stroke="none"') for x, y in colours),
                                   path('M18 4.5C25.5 4.5 31.5 9.5 31.5 16.5C31.5 21.5 27.5 23.5 23.5 23.5C19.5 23.5 19 25.5 20 27.5C21 29.5 20 31.5 17.5 31.5C10.5 31.5 4.5 25.5 4.5 18C4.5 10.5 10.5 4.5 18 4.5Z')),
        'page-others': sidebar(path('M4.5 9.5H14M24 9.5H31.5M4.5 26.5H11M21 26.5H31.5')
                               + circle(19, 9.5, 4.5) + circle(16, 26.5, 4.5),
                               circle(19, 9.5, 4.5) + circle(16, 26.5, 4.5)),
        'page-moreApps': sidebar(box(4.5, 4.5, 11, 11, 3) + box(20.5, 4.5, 11, 11, 3) + box(4.5, 20.5, 11, 11, 3)
                                 + path('M26 21V31M21 26H31'),
                                 box(4.5, 4.5, 11, 11, 3) + box(20.5, 4.5, 11, 11, 3) + box(4.5, 20.5, 11, 11, 3)),
    }


# The application: a menu over a mountain lake.

def application():
    defs = ('<defs><linearGradient id="sky" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#4fb4ee"/>'
            '<stop offset="1" stop-color="#a6def5"/></linearGradient>'
            '<linearGradient id="lake" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#23aaa0"/>'
            '<stop offset="1" stop-color="#0c6570"/></linearGradient>'
            '<clipPath id="tile"><rect x="10" y="10" width="108" height="108" rx="25"/></clipPath></defs>')
    backdrop = ('<g clip-path="url(#tile)"><path d="M10 10H118V80H10Z" fill="url(#sky)"/>'
                '<path d="M64 80L94 34L124 76V80Z" fill="#6583cc"/><path d="M2 80L44 22L86 80Z" fill="#3a549f"/>'
                '<path d="M44 22L54.5 36.5L48.5 34L44 40L38.5 34.5L33.400 36.600Z" fill="#fff"/>'
                '<path d="M10 78H118V118H10Z" fill="url(#lake)"/></g>')
    rim = box(10.75, 10.75, 106.5, 106.5, 24.25, 'fill="none" stroke="#fff" stroke-opacity=".16" stroke-width="1.5"')
    menu = ('<rect x="28" y="47" width="62" height="62" rx="9" fill="#06323f" fill-opacity=".3"/>'
            '<rect x="28" y="44" width="62" height="62" rx="9" fill="#fff"/>'
            '<rect x="33" y="63" width="52" height="14" rx="5" fill="#2a72d4"/>'
            '<g stroke="#5f7287" stroke-width="4.5" stroke-linecap="round"><path d="M47 55H74M47 85H66M47 98H62"/>'
            '<path d="M47 70H66" stroke="#fff"/></g>'
            '<circle cx="39.5" cy="55" r="2.8" fill="#e0641c"/><circle cx="39.5" cy="70" r="2.8" fill="#fff"/>'
            '<circle cx="39.5" cy="85" r="2.8" fill="#2a964c"/><circle cx="39.5" cy="98" r="2.8" fill="#8150cf"/>')
    pointer = ('<path d="M73 69V105L82 97.5L87.5 110.5L95 107.3L89.5 94.5H101Z" fill="#26323e" stroke="#fff" '
               'stroke-width="5" stroke-linejoin="round" paint-order="stroke"/>')
    return svg('\n'.join((defs, backdrop, rim, menu, pointer)), 128)



def applicationSmall():
    """The same picture for 16 and 32 pixels: fewer and heavier parts."""
    return svg('<defs><linearGradient id="sky" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#4fb4ee"/>'
               '<stop offset="1" stop-color="#a6def5"/></linearGradient>'
               '<clipPath id="tile"><rect x="1" y="1" width="30" height="30" rx="7"/></clipPath></defs>\n'
               '<g clip-path="url(#tile)"><path d="M1 1H31V31H1Z" fill="url(#sky)"/>'
               '<path d="M-2 20L9 4L20 20Z" fill="#3a549f"/><path d="M1 20H31V31H1Z" fill="#178f8a"/></g>\n'
               '<rect x="6" y="10" width="18" height="18" rx="3" fill="#fff"/>'
               '<rect x="8" y="14" width="14" height="4" rx="1.5" fill="#2a72d4"/>'
               '<path d="M9 22H15M9 25H13" stroke="#5f7287" stroke-width="2"/>\n'
               '<path d="M18 16V29L21.5 26L27 26Z" fill="#26323e" stroke="#fff" stroke-width="2.4" '
               'stroke-linejoin="round" paint-order="stroke"/>', 32)



GROUPS = {
    'templates': {
        'txt': page('slate', textLines()),
        'rtf': page('pink', letterA()),
        'xml': page('violet', angleBrackets()),
        'docx': page('blue', letterW()),
        'xlsx': page('green', table()),
        'pptx': page('orange', pie()),
        'wps': page('indigo', pilcrow()),
        'et': page('teal', sigma()),
        'dps': page('red', slidePlay()),
        'pages': page('amber', pencil()),
        'numbers': page('lime', bars()),
        'key': page('sky', slides()),
        'ai': page('brown', bezier()),
        'psd': page('navy', layers()),
        'md': page('ink', hash_()),
    },
    'sections': {
        'createNewFile': tile('green', sheetPlus()),
        'copyFilesTo': tile('blue', sheetCopy()),
        'moveFilesTo': tile('violet', folderArrow()),
        'commonPath': tile('amber', folderStar()),
        'customIcon': tile('pink', palette()),
    },
    'actions': {
        'Hidden Selected Files': page('slate', eyeClosed()),
        'Hidden All Files in Path': folder('slate', eyeClosed()),
        'Nohidden Selected Files': page('teal', eyeOpen()),
        'Nohidden All Files in Path': folder('teal', eyeOpen()),
        'Open in iTerm2': tile('forest', dollarPrompt()),
        'Delete directly': tile('red', bin_()),
        'Open in Terminal': tile('ink', prompt()),
        'Paste': tile('amber', clipboard()),
        'Copy Path': tile('blue', chain()),
        'Cut': tile('orange', scissors()),
        'Image to Icon': tile('pink', landscapeToIcon()),
        'VSCode': tile('sky', braces()),
        'Sublime Text': tile('brown', caretLines()),
        'Emacs': tile('violet', lambdaParens()),
        'Snapfin': tile('teal', finInFrame()),
        'Translate by Baidu': tile('indigo', translateCards()),
        'Translate by Google': tile('green', globeCard()),
        'Change to QR Code': tile('ink', matrixCode()),
    },
    'custom': {
        'App': folder('indigo', apps()),
        'Apple': folder('lime', fruit()),
        'Book': folder('brown', openBook()),
        'Calendar': folder('red', calendar()),
        'Cloud': folder('sky', cloud()),
        'Excel': folder('green', table()),
        'File': folder('slate', sheetLines()),
        'Google': folder('forest', globeLens()),
        'Mac OS1': folder('blue', window()),
        'Mac OS2': folder('violet', loopedSquare()),
        'Mac': folder('ink', laptop()),
        'Mail': folder('teal', envelope()),
        'Music': folder('pink', notes()),
        'Pages': folder('amber', pencil()),
        'Picture': folder('navy', landscape()),
        'PPT': folder('orange', pie()),
        'QQ': folder('crimson', bird()),
        'Video': folder('plum', camera()),
        'WeChat': folder('mint', bubbles()),
        'Word': folder('blue', letterW()),
    },
    'application': {
        'Tarnwick': application(),
        'Tarnwick-small': applicationSmall(),
    },
    'pages': dict(sidebarIcons(), **{
        'app-Snapfin': tile('teal', finInFrame()),
        'app-Allbright': tile('amber', sun()),
        'app-Website': tile('blue', globe(17)),
    }),
}


def main():
    for name, icons in GROUPS.items():
        directory = os.path.join(HERE, 'source', name)
        os.makedirs(directory, exist_ok=True)
        for icon, text in icons.items():
            with open(os.path.join(directory, icon + '.svg'), 'w', encoding='utf-8', newline='\n') as file:
                file.write(text)


if __name__ == '__main__':
    main()
