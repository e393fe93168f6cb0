"""The white glyphs of the icons, each a function that gives SVG elements on a field from -20 to 20 both ways.

The container sets the stroke; `currentColor` is the colour of the container (for cut-outs).
"""

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
    body = (path('M-5-13V9L0 19L5 9V-13Z', FILL) + path('M-5-16V-17.5A2.5 2.5 0 0 1-2.5-20H2.5A2.5 2.5 0 0 '
                                                        '1 5-17.5V-16Z', FILL))
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
FOLDER = ('M-16-16H-6A3 3 0 0 1-4-15L0-10.5H16A4 4 0 0 1 20-6.5'
          'V12A4 4 0 0 1 16 16H-16A4 4 0 0 1-20 12V-12A4 4 0 0 1-16-16Z')


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
            + path('M0-7.5L3.2-.9L10.4 .1L5.2 5.2L6.4 12.4L0 9L-6.4 12.4L-5.2 5.2L-10.4 .1L-3.2-.9Z', CUT
                   + ' stroke-linejoin="round"'))


def palette():
    return (path('M0-19C11-19 20-12 20-2C20 5 14 7 9 7C3 7 2 10 4 13C6 16 4 19 0 19C-12 19-20 11-20 0'
                 'C-20-11-11-19 0-19Z', FILL)
            + circle(-12, -1, 3.6, CUT) + circle(-6, -10.5, 3.6, CUT) + circle(5, -11.5, 3.6, CUT)
            + circle(12.5, -4, 3.6, CUT))


def sheetLines():
    return path(SHEET, FILL) + path('M-6-4H3M-6 4H7M-6 12H7', CARVE + ' stroke-width="4"')


# Glyphs: actions

def scissors():
    return (path('M-5.5 6L9.5-18M5.5 6L-9.5-18') + circle(-9, 12, 5.8) + circle(9, 12, 5.8))


def clipboard():
    return (box(-15, -15, 30, 34, 5, FILL) + box(-9, -20, 18, 11, 4, SOLID + ' ' + CARVE
                                                 + ' stroke-width="3"')
            + path('M-8-1H8M-8 6.5H8M-8 14H2', CARVE + ' stroke-width="3.6"'))


def chain():
    return group(path('M-5-8H-11A8 8 0 0 0-11 8H-5M5-8H11A8 8 0 0 1 11 8H5M-8 0H8'),
                 'rotate(-45) scale(1.05)')


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
    return (path('M0-6C-5-9-17-10-17 3C-17 12-10 20-5 20C-3 20-2 19 0 19S3 20 5 20C10 20 17 12 17 3C17-10 '
                 '5-9 0-6Z', FILL)
            + path('M0-6Q0-13-4-17', 'stroke-width="4"')
            + path('M3-10C3-16 8-20 17-20C16-13 11-10 3-10Z', FILL + ' fill-opacity=".7"')
            + path('M-11 4Q-11-2-6-3', CARVE + ' stroke-width="3"'))


def openBook():
    return (path('M-1.5-12C-6-16-13-17-20-16V13C-13 12-6 13-1.5 17ZM1.5-12C6-16 13-17 20-16V13C13 12 6 13 '
                 '1.5 17Z', FILL)
            + path('M-14.5-8Q-10-8-6.5-6M-14.5 0Q-10 0-6.5 2M14.5-8Q10-8 6.5-6M14.5 0Q10 0 6.5 2', CARVE
                   + ' stroke-width="2.6"'))


def calendar():
    days = ((-10, 3), (0, 3), (10, 3), (-10, 11), (0, 11))
    dots = ''.join(box(x - 2.4, y - 2.4, 4.8, 4.8, 1.2, CUT) for x, y in days)
    return (box(-18, -15, 36, 33, 6, FILL) + path('M-18-5.5H18', CARVE + ' stroke-width="3" '
                                                                         'stroke-linecap="butt"')
            + path('M-9-15.5V-9.5M9-15.5V-9.5', CARVE + ' stroke-width="8" stroke-linecap="butt"')
            + path('M-9-18V-12M9-18V-12', 'stroke-width="4"') + dots)


def cloud():
    return path('M-11 14A9 9 0 0 1-12-4A12 12 0 0 1 11-6A10 10 0 0 1 11 14Z', FILL)


def globeLens():
    return (group(globe(14), 'translate(-4.5 -4.5)')
            + circle(8, 7, 8.5, 'fill="currentColor" stroke="currentColor" stroke-width="7"')
            + circle(8, 7, 7.5, 'fill="#fff" fill-opacity=".35"') + path('M13.5 12.5L19 18',
                                                                         'stroke-width="6"'))


def window():
    return (box(-19, -16, 38, 32, 6, FILL) + path('M-19-6H19', CARVE + ' stroke-width="2.6" '
                                                                       'stroke-linecap="butt"')
            + circle(-13, -11, 2.4, CUT) + circle(-6, -11, 2.4, CUT) + circle(1, -11, 2.4, CUT)
            + box(-13, 0, 9, 10, 2, CUT + ' fill-opacity=".55"'))


def loopedSquare():
    return path('M-6-6V-11.5A5.5 5.5 0 1 0-11.5-6H11.5A5.5 5.5 0 1 0 6-11.5V11.5A5.5 5.5 0 1 0 11.5 6H-11.5'
                'A5.5 5.5 0 1 0-6 11.5Z')


def laptop():
    return (box(-15, -15, 30, 22, 4, SOLID + ' fill-opacity=".3"') + path('M-20 14H20', 'stroke-width="5.5"'))


def envelope():
    return (box(-19, -14, 38, 28, 6, FILL) + path('M-17-9L-3 2.5A5 5 0 0 0 3 2.5L17-9', CARVE
                                                  + ' stroke-width="3.4"'))


def notes():
    return (path('M-7 13V-12L14-17V8') + path('M-7-12L14-17V-9L-7-4Z', SOLID + ' stroke-width="3"')
            + f'<ellipse cx="-11" cy="13" rx="6.5" ry="5.5" {FILL}/>'
              f'<ellipse cx="10" cy="8.5" rx="6.5" ry="5.5" {FILL}/>')


def bird():
    return (path('M-20-3L-9-1C-4-2-3-5-2.5-9A9 9 0 0 1 14.5-11L20-8L15-5C15 6 9 13-1 13C-10 13-13 8-20-3Z',
                 FILL)
            + path('M-8 1C-3-1 3-2 8-4C8 5 3 9-2 8.5C-6 8-8 5-8 1Z', CUT) + circle(7.5, -9, 2.2, CUT)
            + path('M0 14V19M5.5 13V19', 'stroke-width="3"'))


def camera():
    return (box(-20, -13, 27, 26, 6, FILL) + path('M10-3L20-10V10L10 3Z', SOLID + ' stroke-width="1.5"')
            + path('M-10-5L-2 0L-10 5Z', 'fill="currentColor" stroke="currentColor" stroke-width="2"'))


def bubbles():
    return (path('M-14-18H3A5 5 0 0 1 8-13V-6A5 5 0 0 1 3-1H-7L-14 5V-1.5'
                 'A5 5 0 0 1-19-6V-13A5 5 0 0 1-14-18Z',
                 FILL + ' fill-opacity=".65"')
            + path('M0-6H14A5.5 5.5 0 0 1 19.5-.5V8A5.5 5.5 0 0 1 14 13.5V19L7 13.5H0A5.5 5.5 0 0 1-5.5 8'
                   'V-.5A5.5 5.5 0 0 1 0-6Z',
                   'fill="#fff" stroke="currentColor" stroke-width="3" paint-order="stroke"')
            + circle(1, 4, 2, CUT) + circle(7, 4, 2, CUT) + circle(13, 4, 2, CUT))


def sun():
    rays = ''.join(group(path('M0-14V-19'), f'rotate({angle})') for angle in range(0, 360, 45))
    return circle(0, 0, 8, FILL) + rays
