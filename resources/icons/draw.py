#!/usr/bin/env python3
"""Writes the SVG sources of every icon below source/.

An icon is a container (tile, page or folder, in one colour of the palette) and a white glyph. The container
scales the glyph and sets the stroke, so that strokes are equally heavy everywhere.
"""

import os

from glyphs import (
    angleBrackets, apps, bars, bezier, bin_, bird, box, braces, bubbles, calendar, camera, caretLines, chain,
    circle, clipboard, cloud, dollarPrompt, envelope, eyeClosed, eyeOpen, finInFrame, folderArrow, folderStar,
    fruit, globe, globeCard, globeLens, hash_, lambdaParens, landscape, landscapeToIcon, laptop, layers,
    letterA, letterW, loopedSquare, matrixCode, notes, openBook, palette, path, pencil, pie, pilcrow, prompt,
    scissors, sheetCopy, sheetLines, sheetPlus, sigma, slidePlay, slides, sun, table, textLines, translateCards,
    window)

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


# Containers

def gradient(colour):
    upper, lower = PALETTE[colour]
    return ('<defs><linearGradient id="body" x1="0" y1="0" x2="0" y2="1">'
            f'<stop offset="0" stop-color="{upper}"/>'
            f'<stop offset="1" stop-color="{lower}"/></linearGradient></defs>')


def place(glyph, colour, x, y, scale, stroke):
    return (f'<g transform="translate({x} {y}) scale({scale})" color="{PALETTE[colour][1]}" fill="none" '
            'stroke="#fff" '
            f'stroke-width="{stroke / scale:.3g}" stroke-linecap="round" stroke-linejoin="round">{glyph}</g>')


def svg(content, field='0 0 64 64'):
    return f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="{field}">\n{content}\n</svg>\n'


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
        path('M8 7H23A5 5 0 0 1 26.5 8.5L30.5 12.5H55A5 5 0 0 1 60 17.5V40H3V12A5 5 0 0 1 8 7Z',
             f'fill="{lower}"'),
        box(7, 15.5, 50, 20, 3, 'fill="#fff" fill-opacity=".8"'),
        box(2, 19, 60, 40, 6, 'fill="url(#body)"'),
        box(3, 20, 58, 38, 5, 'fill="none" stroke="#fff" stroke-opacity=".2" stroke-width="2"'),
        place(glyph, colour, 32, 39, .84, 4.4))))


# Page buttons of the window: two tones of one slate on a square of 36, with room at the sides: the buttons have none.

SLATE = '#768a9f'
SIDEBAR_FIELD = '-14.4 0 64.8 36'


def sidebar(strong, soft):
    return svg(f'<g fill="none" stroke="{SLATE}" stroke-width="3" stroke-linecap="round" '
               f'stroke-linejoin="round" color="{SLATE}">'
               f'<g fill="{SLATE}" fill-opacity=".38" stroke="none">{soft}</g>{strong}</g>', SIDEBAR_FIELD)


def sidebarIcons():
    outline = ('M9.5 4.5H20.5L28.5 12.5V28.5A3 3 0 0 1 25.5 31.5'
               'H10.5A3 3 0 0 1 7.5 28.5V7.5A3 3 0 0 1 10.5 4.5Z')
    tray = ('M7.5 6.5H13.5L17.5 10.5H28.5A3 3 0 0 1 31.5 13.5'
            'V26.5A3 3 0 0 1 28.5 29.5H7.5A3 3 0 0 1 4.5 26.5V9.5A3 3 0 0 1 7.5 6.5Z')
    star = 'M18 14.5L19.8 18.4L24 18.9L20.9 21.8L21.7 26L18 23.9L14.3 26L15.1 21.8L12 18.9L16.2 18.4Z'
    colours = ((11, 18.5), (14.5, 11.5), (22, 11), (26.3, 17))
    return {
        'page-createNewFile': sidebar(path(outline) + path('M18 14.5V24.5M13 19.5H23'), path(outline)),
        'page-copyFilesTo': sidebar(path('M12.5 8.5V6.5A2 2 0 0 1 14.5 4.5H29.5A2 2 0 0 1 31.5 6.5V21.5A2 2 '
                                         '0 0 1 29.5 23.5H27.5')
                                    + box(4.5, 12.5, 19, 19, 3) + path('M9.5 22H18M14.5 18L18.5 22L14.5 26'),
                                    box(4.5, 12.5, 19, 19, 3)),
        'page-commonPath': sidebar(path(tray) + path(star, f'fill="{SLATE}" stroke="none"'), path(tray)),
        'page-customIcon': sidebar(path('M18 4.5C25.5 4.5 31.5 9.5 31.5 16.5C31.5 21.5 27.5 23.5 23.5 23.5'
                                        'C19.5 23.5 19 25.5 20 27.5C21 29.5 20 31.5 17.5 31.5C10.5 31.5 4.5 '
                                        '25.5 4.5 18C4.5 10.5 10.5 4.5 18 4.5Z')
                                   + ''.join(circle(x, y, 2.1, f'fill="{SLATE}" stroke="none"') for x,
                                             y in colours),
                                   path('M18 4.5C25.5 4.5 31.5 9.5 31.5 16.5C31.5 21.5 27.5 23.5 23.5 23.5'
                                        'C19.5 23.5 19 25.5 20 27.5C21 29.5 20 31.5 17.5 31.5C10.5 31.5 4.5 '
                                        '25.5 4.5 18C4.5 10.5 10.5 4.5 18 4.5Z')),
        'page-others': sidebar(path('M4.5 9.5H14M24 9.5H31.5M4.5 26.5H11M21 26.5H31.5')
                               + circle(19, 9.5, 4.5) + circle(16, 26.5, 4.5),
                               circle(19, 9.5, 4.5) + circle(16, 26.5, 4.5)),
        'page-moreApps': sidebar(box(4.5, 4.5, 11, 11, 3) + box(20.5, 4.5, 11, 11, 3) + box(4.5, 20.5, 11,
                                                                                            11, 3)
                                 + path('M26 21V31M21 26H31'),
                                 box(4.5, 4.5, 11, 11, 3) + box(20.5, 4.5, 11, 11, 3) + box(4.5, 20.5, 11,
                                                                                            11, 3)),
    }


# The application: a menu over a mountain lake.

def application():
    defs = ('<defs><linearGradient id="sky" x1="0" y1="0" x2="0" y2="1">'
            '<stop offset="0" stop-color="#4fb4ee"/>'
            '<stop offset="1" stop-color="#a6def5"/></linearGradient>'
            '<linearGradient id="lake" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#23aaa0"/>'
            '<stop offset="1" stop-color="#0c6570"/></linearGradient>'
            '<clipPath id="tile"><rect x="10" y="10" width="108" height="108" rx="25"/></clipPath></defs>')
    backdrop = ('<g clip-path="url(#tile)"><path d="M10 10H118V80H10Z" fill="url(#sky)"/>'
                '<path d="M64 80L94 34L124 76V80Z" fill="#6583cc"/>'
                '<path d="M2 80L44 22L86 80Z" fill="#3a549f"/>'
                '<path d="M44 22L54.5 36.5L48.5 34L44 40L38.5 34.5L33.400 36.600Z" fill="#fff"/>'
                '<path d="M10 78H118V118H10Z" fill="url(#lake)"/></g>')
    rim = box(10.75, 10.75, 106.5, 106.5, 24.25, 'fill="none" stroke="#fff" stroke-opacity=".16" '
                                                 'stroke-width="1.5"')
    menu = ('<rect x="28" y="47" width="62" height="62" rx="9" fill="#06323f" fill-opacity=".3"/>'
            '<rect x="28" y="44" width="62" height="62" rx="9" fill="#fff"/>'
            '<rect x="33" y="63" width="52" height="14" rx="5" fill="#2a72d4"/>'
            '<g stroke="#5f7287" stroke-width="4.5" stroke-linecap="round">'
            '<path d="M47 55H74M47 85H66M47 98H62"/>'
            '<path d="M47 70H66" stroke="#fff"/></g>'
            '<circle cx="39.5" cy="55" r="2.8" fill="#e0641c"/>'
            '<circle cx="39.5" cy="70" r="2.8" fill="#fff"/>'
            '<circle cx="39.5" cy="85" r="2.8" fill="#2a964c"/>'
            '<circle cx="39.5" cy="98" r="2.8" fill="#8150cf"/>')
    pointer = ('<path d="M73 69V105L82 97.5L87.5 110.5L95 107.3L89.5 94.5H101Z" fill="#26323e" stroke="#fff" '
               'stroke-width="5" stroke-linejoin="round" paint-order="stroke"/>')
    return svg('\n'.join((defs, backdrop, rim, menu, pointer)), '0 0 128 128')


def applicationSmall():
    """The same picture for 16 and 32 pixels: fewer and heavier parts."""
    return svg('<defs><linearGradient id="sky" x1="0" y1="0" x2="0" y2="1">'
               '<stop offset="0" stop-color="#4fb4ee"/>'
               '<stop offset="1" stop-color="#a6def5"/></linearGradient>'
               '<clipPath id="tile"><rect x="1" y="1" width="30" height="30" rx="7"/></clipPath></defs>\n'
               '<g clip-path="url(#tile)"><path d="M1 1H31V31H1Z" fill="url(#sky)"/>'
               '<path d="M-2 20L9 4L20 20Z" fill="#3a549f"/><path d="M1 20H31V31H1Z" fill="#178f8a"/></g>\n'
               '<rect x="6" y="10" width="18" height="18" rx="3" fill="#fff"/>'
               '<rect x="8" y="14" width="14" height="4" rx="1.5" fill="#2a72d4"/>'
               '<path d="M9 22H15M9 25H13" stroke="#5f7287" stroke-width="2"/>\n'
               '<path d="M18 16V29L21.5 26L27 26Z" fill="#26323e" stroke="#fff" stroke-width="2.4" '
               'stroke-linejoin="round" paint-order="stroke"/>', '0 0 32 32')


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
