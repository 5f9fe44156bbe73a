// The official authentication client, unchanged, against morvane-server (started by
// tests/server/tst_jsclients.cpp): sign-up, sign-in, refresh and sign-out.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { AuthClient } from '@supabase/auth-js';

const anonKey = process.env.MORVANE_ANON_KEY;
const client = () =>
    new AuthClient({
        url: `${process.env.MORVANE_URL}/auth/v1`,
        headers: { apikey: anonKey, Authorization: `Bearer ${anonKey}` },
        persistSession: false,
        autoRefreshToken: false,
        detectSessionInUrl: false,
    });
const email = `js-${Date.now()}@example.nl`;
const password = 'a good passphrase';

test('sign-up, a refused sign-in, sign-in, refresh with rotation, and sign-out', async () => {
    const signedUp = await client().signUp({ email, password, options: { data: { display_name: 'Jess' } } });
    assert.equal(signedUp.error, null);
    assert.equal(signedUp.data.user.user_metadata.display_name, 'Jess');
    assert.equal(signedUp.data.session.token_type, 'bearer');
    assert.equal((await client().signInWithPassword({ email, password: 'not it' })).error.code, 'invalid_credentials');

    const auth = client();
    const { data: signedIn, error } = await auth.signInWithPassword({ email, password });
    assert.equal(error, null);
    assert.ok(signedIn.session.expires_at > Date.now() / 1000);
    const refreshed = await auth.refreshSession({ refresh_token: signedIn.session.refresh_token });
    assert.equal(refreshed.error, null);
    assert.notEqual(refreshed.data.session.refresh_token, signedIn.session.refresh_token);

    const access = refreshed.data.session.access_token;
    assert.equal((await auth.getUser(access)).data.user.email, email);
    assert.equal((await auth.signOut({ scope: 'local' })).error, null);
    // The client turns the server's session_not_found into its own missing-session error.
    assert.equal((await client().getUser(access)).error.name, 'AuthSessionMissingError');
});
