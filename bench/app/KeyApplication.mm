// The application itself, driven by its keys.

#import "bench/app/DrivenApplication.h"
#import "bench/app/KeyService.h"
#import "front/SettingsViewController+Actions.h"

int main(int argc, char *argv[]) {
    tarnwick::bench::runApplication(argc, argv, [](SettingsViewController *controller) {
        tarnwick::bench::serveKeys([controller] { return [controller tableOf:*[controller shownCategory]]; });
    });
}
