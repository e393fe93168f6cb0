// placeholder while the theme is being written
#import "TNTheme.h"
#import "TNStartUp.h"
static NSColor *grey(CGFloat w) { return [[NSColor colorWithCalibratedWhite:w alpha:1] retain]; }
const TNThemeColors *TNThemeCurrentColors() {
    static TNThemeColors light{grey(.96), grey(1), grey(.975), [[NSColor colorWithCalibratedRed:.78 green:.87 blue:.99 alpha:1] retain], grey(.87), grey(.12), grey(.42), grey(.6), grey(.8), grey(1), grey(.9), grey(.97), [[NSColor colorWithCalibratedRed:.16 green:.45 blue:.93 alpha:1] retain], grey(1)};
    return &light;
}
void TNInstallTheme() {}
