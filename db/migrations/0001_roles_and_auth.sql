-- Request roles, the auth schema and the private `app` schema.
--
-- A hosted backend of this kind already owns the roles, the auth and storage schemas and the auth
-- functions (as another role, so CREATE OR REPLACE would fail there): everything below only creates
-- what is missing and leaves existing objects and their grants alone.

do $$
declare
    r text;
begin
    if not exists (select 1 from pg_roles where rolname = 'anon') then
        create role anon nologin noinherit;
    end if;
    if not exists (select 1 from pg_roles where rolname = 'authenticated') then
        create role authenticated nologin noinherit;
    end if;
    if not exists (select 1 from pg_roles where rolname = 'service_role') then
        create role service_role nologin noinherit bypassrls;
    end if;

    -- The server switches to these per request; a superuser could anyway, but a plain owner role
    -- on a shared server needs the membership.
    foreach r in array array['anon', 'authenticated', 'service_role'] loop
        if not exists (select 1
                       from pg_auth_members m
                       where m.roleid = (select oid from pg_roles where rolname = r)
                         and m.member = (select oid from pg_roles where rolname = current_user)) then
            begin
                execute format('grant %I to %I', r, current_user);
            exception when insufficient_privilege then
                raise notice 'could not grant % to %: %', r, current_user, sqlerrm;
            end;
        end if;
    end loop;
end
$$;

-- Helpers that policies and triggers call. Not exposed over HTTP: only `public` is.
create schema if not exists app;
revoke all on schema app from public;
grant usage on schema app to authenticated, service_role;

-- Filled by the storage migration; only the namespace is ours to guarantee.
create schema if not exists storage;

do $do$
begin
    if not exists (select 1 from pg_namespace where nspname = 'auth') then
        create schema auth;
        grant usage on schema auth to anon, authenticated, service_role;
    end if;

    -- request.jwt.claims is set per request by the server; outside a request it is unset or ''.
    if to_regprocedure('auth.jwt()') is null then
        create function auth.jwt() returns jsonb
            language sql stable
        as $fn$
            select nullif(current_setting('request.jwt.claims', true), '')::jsonb
        $fn$;
        revoke all on function auth.jwt() from public;
        grant execute on function auth.jwt() to anon, authenticated, service_role;
    end if;

    if to_regprocedure('auth.uid()') is null then
        create function auth.uid() returns uuid
            language sql stable
        as $fn$
            select nullif(nullif(current_setting('request.jwt.claims', true), '')::jsonb ->> 'sub', '')::uuid
        $fn$;
        revoke all on function auth.uid() from public;
        grant execute on function auth.uid() to anon, authenticated, service_role;
    end if;

    if to_regprocedure('auth.role()') is null then
        create function auth.role() returns text
            language sql stable
        as $fn$
            select nullif(current_setting('request.jwt.claims', true), '')::jsonb ->> 'role'
        $fn$;
        revoke all on function auth.role() from public;
        grant execute on function auth.role() to anon, authenticated, service_role;
    end if;

    if to_regprocedure('auth.email()') is null then
        create function auth.email() returns text
            language sql stable
        as $fn$
            select nullif(current_setting('request.jwt.claims', true), '')::jsonb ->> 'email'
        $fn$;
        revoke all on function auth.email() from public;
        grant execute on function auth.email() to anon, authenticated, service_role;
    end if;

    -- Same columns as the authentication service keeps, so its code runs unchanged on either side.
    if to_regclass('auth.users') is null then
        create table auth.users (
            instance_id uuid,
            id uuid primary key default gen_random_uuid(),
            aud text,
            role text,
            email text,
            encrypted_password text,
            email_confirmed_at timestamptz,
            invited_at timestamptz,
            confirmation_token text,
            confirmation_sent_at timestamptz,
            recovery_token text,
            recovery_sent_at timestamptz,
            email_change text,
            email_change_sent_at timestamptz,
            last_sign_in_at timestamptz,
            raw_app_meta_data jsonb default '{}'::jsonb,
            raw_user_meta_data jsonb default '{}'::jsonb,
            is_super_admin boolean,
            phone text,
            phone_confirmed_at timestamptz,
            confirmed_at timestamptz generated always as (least(email_confirmed_at, phone_confirmed_at)) stored,
            banned_until timestamptz,
            is_anonymous boolean not null default false,
            created_at timestamptz default now(),
            updated_at timestamptz default now(),
            deleted_at timestamptz
        );
        -- Addresses are matched case-insensitively at sign-in and when inviting.
        create unique index users_email_lower_key on auth.users (lower(email));
        revoke all on table auth.users from public;
    end if;
end
$do$;
