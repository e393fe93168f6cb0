-- The user script: what Tarnwick may not do inside its sandbox. Each handler is called by its name.

property applicationDomain : "org.halvane.Tarnwick"
property sharedDomain : "H7Q2ZK5RX9.org.halvane.Tarnwick"

-- Quits the Finder and starts it again.
on restartFinder()
	tell application "Finder" to quit
	-- A Finder that is asked to launch while it is still quitting stays away.
	repeat 100 times
		if application "Finder" is not running then exit repeat
		delay 0.1
	end repeat
	tell application "Finder" to launch
end restartFinder

-- Opens the keyboard settings, where services are switched on.
on openServices()
	open location "x-apple.systempreferences:com.apple.preference.keyboard?Shortcuts"
end openServices

-- Deletes all settings: both preference domains and the templates in the shared folder, nothing else.
on initialize()
	set libraryFolder to POSIX path of (path to library folder from user domain)
	set sharedFolder to libraryFolder & "Group Containers/" & sharedDomain & "/"
	my deleteDomain(applicationDomain)
	my deleteDomain(libraryFolder & "Containers/" & applicationDomain & "/Data/Library/Preferences/" & applicationDomain)
	my deleteDomain(sharedDomain)
	my deleteDomain(sharedFolder & "Library/Preferences/" & sharedDomain)
	do shell script "/bin/rm -rf " & quoted form of (sharedFolder & "Templates")
end initialize

-- A domain by its name, or by the path of its file when a sandbox keeps it elsewhere.
on deleteDomain(domain)
	try
		do shell script "/usr/bin/defaults delete " & quoted form of domain
	on error
		-- It is not there, so there is nothing to delete.
	end try
end deleteDomain
